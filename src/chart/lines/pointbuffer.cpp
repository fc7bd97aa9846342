#include "chart/lines/pointbuffer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr ValueRange nothing{infinite, -infinite};

bool finite(const TPoint& point)
{
    return std::isfinite(point.sec) && std::isfinite(point.degC);
}

void widen(ValueRange& range, double value)
{
    range.lowest = std::min(range.lowest, value);
    range.highest = std::max(range.highest, value);
}

void widen(ValueRange& range, const ValueRange& other)
{
    range.lowest = std::min(range.lowest, other.lowest);
    range.highest = std::max(range.highest, other.highest);
}

// The lowest value that a pair does not exceed and the highest that it does not fall below.
ValueRange pairOf(double a, double b)
{
    return {std::max(a, b), std::min(a, b)};
}

} // namespace

PointBuffer::PointBuffer(int maximum, int thinTarget, Mode mode)
    : maximumCount(std::max(maximum, 0))
    , thinTargetCount(std::max(thinTarget, 0))
    , limitMode(mode)
{
}

void PointBuffer::append(const TPoint& point)
{
    store(point);
    if (count <= maximumCount) {
        return;
    }
    if (limitMode == ThinOut) {
        thinOut();
        return;
    }
    while (count > maximumCount) {
        dropFirst();
    }
}

void PointBuffer::store(const TPoint& point)
{
    const bool ordered
        = finite(point) && (count == 0 || (isFinite(count - 1) && point.sec >= at(count - 1).sec));
    if (!ordered) {
        stretchStarts.push_back(firstPlace + dropped + count);
    }
    if (pieces.isEmpty() || pieces.constLast().points.size() == pieceSize) {
        Piece piece;
        piece.points.reserve(pieceSize);
        piece.blocks.reserve(pieceSize / blockSize);
        piece.wideBlocks.reserve(pieceSize / wideBlockSize);
        pieces.append(piece);
    }
    Piece& piece = pieces.last();
    const ValueRange pair = count > 0 ? pairOf(at(count - 1).degC, point.degC) : nothing;
    if (piece.points.size() % blockSize == 0) {
        piece.blocks.append({point.degC, point.degC});
    }
    if (piece.points.size() % wideBlockSize == 0) {
        piece.wideBlocks.append({{point.degC, point.degC}, pair});
    }
    widen(piece.blocks.last(), point.degC);
    WideBlock& wide = piece.wideBlocks.last();
    widen(wide.range, point.degC);
    widen(wide.pairs, pair);
    piece.points.append(point);
    ++count;
}

void PointBuffer::dropFirst()
{
    --count;
    ++dropped;
    if (dropped == pieceSize) {
        pieces.removeFirst();
        dropped = 0;
        firstPlace += pieceSize;
    }
    while (!stretchStarts.empty() && stretchStarts.front() <= firstPlace + dropped) {
        stretchStarts.pop_front();
    }
}

void PointBuffer::thinOut()
{
    const int surplus = std::min(count / 2, count - thinTargetCount);
    PointBuffer kept(maximumCount, thinTargetCount, limitMode);
    for (int i = 0; i < count; ++i) {
        const bool goes = i % 2 == 1 && i / 2 < surplus;
        if (!goes) {
            kept.store(at(i));
        }
    }
    *this = kept;
}

int PointBuffer::firstIndex(double sec) const
{
    int low = 0;
    int high = count;
    while (high - low >= 2) {
        const int middle = (low + high) / 2;
        if (at(middle).sec > sec) {
            high = middle;
        } else {
            low = middle;
        }
    }
    return low;
}

int PointBuffer::lastIndex(int first, double sec) const
{
    int start = first + 1;
    while (start < count) {
        const int end = stretchEnd(start);
        int low = start;
        int high = end;
        while (low < high) {
            const int middle = (low + high) / 2;
            if (at(middle).sec > sec) {
                high = middle;
            } else {
                low = middle + 1;
            }
        }
        if (low < end) {
            return low;
        }
        start = end;
    }
    return count - 1;
}

ValueRange PointBuffer::range(int first, int last) const
{
    ValueRange found = nothing;
    int place = dropped + first;
    const int end = dropped + last + 1;
    while (place < end) {
        const Piece& piece = pieces.at(place / pieceSize);
        const int inPiece = place % pieceSize;
        if (inPiece % wideBlockSize == 0 && end - place >= wideBlockSize) {
            widen(found, piece.wideBlocks.at(inPiece / wideBlockSize).range);
            place += wideBlockSize;
        } else if (inPiece % blockSize == 0 && end - place >= blockSize) {
            widen(found, piece.blocks.at(inPiece / blockSize));
            place += blockSize;
        } else {
            widen(found, piece.points.at(inPiece).degC);
            ++place;
        }
    }
    return found;
}

PointBuffer::Candidates PointBuffer::pairsOutside(int from, int last, const ValueRange& inside) const
{
    int point = from;
    while (point <= last) {
        const int place = dropped + point;
        const ValueRange& pairs
            = pieces.at(place / pieceSize).wideBlocks.at(place % pieceSize / wideBlockSize).pairs;
        const int end = std::min(point - place % wideBlockSize + wideBlockSize, last + 1);
        // So that NaN counts as outside.
        const bool isInside = pairs.lowest >= inside.lowest && pairs.highest <= inside.highest;
        if (!isInside) {
            return {point, end};
        }
        point = end;
    }
    return {last + 1, last + 1};
}

int PointBuffer::stretchEnd(int index) const
{
    const qint64 oldest = firstPlace + dropped;
    const auto next = std::upper_bound(stretchStarts.begin(), stretchStarts.end(), oldest + index);
    return next == stretchStarts.end() ? count : static_cast<int>(*next - oldest);
}

bool PointBuffer::isFinite(int index) const
{
    return finite(at(index));
}
