#pragma once

#include <QtGlobal>

#include <algorithm>
#include <deque>
#include <limits>

/// One point of a chart line.
struct TPoint
{
    double sec; ///< elapsed seconds since the start time
    double degC;
};

/// The lowest and the highest temperature of a run of points, deg C; of no point at first.
struct ValueRange
{
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -std::numeric_limits<double>::infinity();

    void widen(double low, double high)
    {
        lowest = std::min(lowest, low);
        highest = std::max(highest, high);
    }
};

/// The history of one channel, oldest point first, limited in length. Indices run from 0 to size() - 1.
///
/// An append costs the same however long the history is, on the average over many. Every block of points
/// keeps its lowest and highest value (min/max envelope), so that the extremes of a long run are found
/// without reading it.
class PointBuffer
{
public:
    enum Mode {
        DropOldest = 0, ///< keep the newest `maximum` points
        ThinOut = 1 ///< take out every second point until `thinTarget` remain (or the end is reached)
    };

    explicit PointBuffer(int maximum = 200000, int thinTarget = 100000, Mode mode = DropOldest);

    /// Appends a point and enforces the limit. Any value may come, NaN and seconds that step back included.
    void append(const TPoint& point);

    int size() const { return static_cast<int>(points.size()); }
    int maximum() const { return maximumCount; }
    const TPoint& at(int index) const { return points[static_cast<std::size_t>(index)]; }

    /// The last point at or before `sec`, or 0 when every point is later or there are fewer than two. A
    /// binary search, which takes the seconds as growing; where they step back it still gives a valid index.
    int firstIndex(double sec) const;

    /// The first point after `first` that is later than `sec`, or the last point when there is none; -1 of no
    /// points.
    int lastIndex(int first, double sec) const;

    /// The extremes of the points `first` to `last`, both included, all of which are finite.
    ValueRange range(int first, int last) const;

    /// One past the stretch that holds `index`. Within a stretch the seconds never step back and everything
    /// is finite; a point that is not finite is a stretch of its own.
    int stretchEnd(int index) const;

    /// False for a point that has no place in the chart: NaN or infinite.
    bool isFinite(int index) const;

private:
    static constexpr int blockSize = 16; // of 230 points a column, some 14 blocks are left to look at

    bool followsOn(int index) const;
    void dropFirst();
    void prepend(const TPoint& point);
    void thinOut();

    int maximumCount;
    int thinTargetCount;
    Mode limitMode;
    std::deque<TPoint> points;
    // Places count the points over the buffer's life, those that are gone included.
    qint64 firstPlace = 0;
    std::deque<ValueRange> blocks; // of blockSize places each; the first may count dropped points too
    std::deque<qint64> stretchStarts; // places, without the first point's
};
