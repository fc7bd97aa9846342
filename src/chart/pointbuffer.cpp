#include "chart/pointbuffer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool finite(const TPoint& point)
{
    return std::isfinite(point.sec) && std::isfinite(point.degC);
}

void widen(ValueRange& range, double value)
{
    range.lowest = std::min(range.lowest, value);
    range.highest = std::max(range.highest, value);
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
        pieces.append(piece);
    }
    Piece& piece = pieces.last();
    if (piece.points.size() % blockSize == 0) {
        piece.blocks.append({point.degC, point.degC});
    } else {
        widen(piece.blocks.last(), point.degC);
    }
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
    ValueRange found{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    int place = dropped + first;
    const int end = dropped + last + 1;
    while (place < end) {
        const Piece& piece = pieces.at(place / pieceSize);
        const int inPiece = place % pieceSize;
        const int inBlock = inPiece % blockSize;
        if (inBlock == 0 && end - place >= blockSize) {
            const ValueRange& block = piece.blocks.at(inPiece / blockSize);
            found.lowest = std::min(found.lowest, block.lowest);
            found.highest = std::max(found.highest, block.highest);
            place += blockSize;
            continue;
        }
        const int steps = std::min(end - place, blockSize - inBlock);
        const TPoint* points = piece.points.constData() + inPiece;
        for (int i = 0; i < steps; ++i) {
            widen(found, points[i].degC);
        }
        place += steps;
    }
    return found;
}

int PointBuffer::blockEnd(int index) const
{
    const int place = dropped + index;
    return std::min(count, place - place % blockSize + blockSize - dropped);
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
