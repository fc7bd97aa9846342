#pragma once

#include <QVector>
#include <QtGlobal>

#include <deque>

/// One point of a chart line.
struct TPoint
{
    double sec; ///< elapsed seconds since the start time
    double degC;
};
Q_DECLARE_TYPEINFO(TPoint, Q_PRIMITIVE_TYPE);

/// The lowest and the highest temperature of a run of points.
struct ValueRange
{
    double lowest;
    double highest;
};
Q_DECLARE_TYPEINFO(ValueRange, Q_PRIMITIVE_TYPE);

/// The history of one channel, oldest point first, limited in length. Indices run from 0 to size() - 1.
///
/// Points live in fixed pieces, so that no append ever moves the history, and every block of points keeps its
/// lowest and highest value, so that the extremes of a long run are found without reading it.
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

    int size() const { return count; }
    int maximum() const { return maximumCount; }
    const TPoint& at(int index) const
    {
        const int place = dropped + index;
        return pieces.at(place / pieceSize).points.at(place % pieceSize);
    }

    /// The last point at or before `sec`, or 0 when every point is later or there are fewer than two. A
    /// binary search, which takes the seconds as growing; where they step back it still gives a valid index.
    int firstIndex(double sec) const;

    /// The first point after `first` that is later than `sec`, or the last point when there is none.
    int lastIndex(int first, double sec) const;

    /// The extremes of the points `first` to `last`, both included, all of which are finite.
    ValueRange range(int first, int last) const;

    /// A short run of points whose extremes are known: the rest of the block that holds `first`, or the
    /// points up to `last` when it ends before.
    struct Block
    {
        int end; ///< one past the last point
        ValueRange range;
    };
    Block blockFrom(int first, int last) const
    {
        const int place = dropped + first;
        const int inBlock = place % blockSize;
        const int end = first - inBlock + blockSize;
        if (inBlock == 0 && end <= last + 1) {
            return {end, pieces.at(place / pieceSize).blocks.at(place % pieceSize / blockSize)};
        }
        const int shortEnd = end <= last ? end : last + 1;
        return {shortEnd, range(first, shortEnd - 1)};
    }

    /// One past the stretch that holds `index`. Within a stretch the seconds never step back and everything
    /// is finite; a point that is not finite is a stretch of its own.
    int stretchEnd(int index) const;

    /// False for a point that has no place in the chart: NaN or infinite.
    bool isFinite(int index) const;

private:
    // Each a multiple of the one before it.
    static constexpr int blockSize = 8;
    static constexpr int wideBlockSize = 64;
    static constexpr int pieceSize = 1024;

    struct Piece
    {
        QVector<TPoint> points;
        QVector<ValueRange> blocks;
        QVector<ValueRange> wideBlocks;
    };

    void store(const TPoint& point);
    void dropFirst();
    void thinOut();

    int maximumCount;
    int thinTargetCount;
    Mode limitMode;
    int count = 0;
    int dropped = 0; // points already dropped from the first piece
    qint64 firstPlace = 0; // how many points were in the pieces that are gone
    QVector<Piece> pieces;
    std::deque<qint64> stretchStarts; // places counted over the buffer's whole life
};
