#include "chart/lines/pointbuffer.h"

#include <cmath>
#include <vector>

PointBuffer::PointBuffer(int maximum, int thinTarget, Mode mode)
    : maximumCount(std::max(maximum, 0))
    , thinTargetCount(std::max(thinTarget, 0))
    , limitMode(mode)
{
}

void PointBuffer::append(const TPoint& point)
{
    const qint64 place = firstPlace + size();
    points.push_back(point);
    if (place % blockSize == 0) {
        blocks.push_back({});
    }
    blocks.back().widen(point.degC, point.degC);
    if (!followsOn(size() - 1)) {
        stretchStarts.push_back(place);
    }
    if (size() > maximumCount && limitMode == ThinOut) {
        thinOut();
    } else if (size() > maximumCount) {
        dropFirst();
    }
}

// Whether a point belongs to the stretch of the one before it.
bool PointBuffer::followsOn(int index) const
{
    return isFinite(index) && (index == 0 || (isFinite(index - 1) && at(index).sec >= at(index - 1).sec));
}

void PointBuffer::dropFirst()
{
    points.pop_front();
    ++firstPlace;
    if (firstPlace % blockSize == 0) {
        blocks.pop_front();
    }
    while (!stretchStarts.empty() && stretchStarts.front() <= firstPlace) {
        stretchStarts.pop_front();
    }
}

void PointBuffer::prepend(const TPoint& point)
{
    points.push_front(point);
    --firstPlace;
    if ((firstPlace + 1) % blockSize == 0) {
        blocks.push_front({});
    }
    if (firstPlace % blockSize == 0) { // nobody asks the first block before it is complete
        blocks.front() = {};
        for (int i = 0; i < std::min(blockSize, size()); ++i) {
            blocks.front().widen(at(i).degC, at(i).degC);
        }
    }
    if (size() > 1 && !followsOn(1)) {
        stretchStarts.push_front(firstPlace + 1);
    }
}

// The work is that of the points taken out, however long the history is.
void PointBuffer::thinOut()
{
    const int surplus = std::min(size() / 2, size() - thinTargetCount);
    std::vector<TPoint> kept;
    for (int i = 0; i < surplus; ++i) {
        kept.push_back(at(0));
        dropFirst();
        dropFirst();
    }
    std::for_each(kept.rbegin(), kept.rend(), [this](const TPoint& point) { prepend(point); });
}

int PointBuffer::firstIndex(double sec) const
{
    int low = 0;
    int high = size();
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
    const auto isNotLater = [sec](const TPoint& point) { return !(point.sec > sec); };
    int start = first + 1;
    while (start < size()) {
        const int end = stretchEnd(start);
        const auto later = std::partition_point(points.begin() + start, points.begin() + end, isNotLater);
        const int index = static_cast<int>(later - points.begin());
        if (index < end) {
            return index;
        }
        start = end;
    }
    return size() - 1;
}

ValueRange PointBuffer::range(int first, int last) const
{
    ValueRange found;
    int index = first;
    while (index <= last) {
        const qint64 place = firstPlace + index;
        if (place % blockSize == 0 && last - index + 1 >= blockSize) {
            const ValueRange& block
                = blocks[static_cast<std::size_t>(place / blockSize - firstPlace / blockSize)];
            found.widen(block.lowest, block.highest);
            index += blockSize;
        } else {
            found.widen(at(index).degC, at(index).degC);
            ++index;
        }
    }
    return found;
}

int PointBuffer::stretchEnd(int index) const
{
    const auto next = std::upper_bound(stretchStarts.begin(), stretchStarts.end(), firstPlace + index);
    return next == stretchStarts.end() ? size() : static_cast<int>(*next - firstPlace);
}

bool PointBuffer::isFinite(int index) const
{
    return std::isfinite(at(index).sec) && std::isfinite(at(index).degC);
}
