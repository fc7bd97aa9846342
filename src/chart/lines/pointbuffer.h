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

    /// Looks for neighbours that are both above `inside` or both below it, a block at a time: the first point
    /// from `from` to `last` whose block holds such a pair, and one past the last point of that block (at
    /// most `last`) to look at. Empty at `last` + 1 when there is none. A pair belongs to its second point's
    /// block.
    struct Candidates
    {
        int from;
        int end;
    };
    Candidates pairsOutside(int from, int last, const ValueRange& inside) const;

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

    struct WideBlock
    {
        ValueRange range;
        ValueRange pairs; // the lowest value that some two neighbours both do not exceed; the highest that
                          // some two both do not fall below
    };

    struct Piece
    {
        QVector<TPoint> points;
        QVector<ValueRange> blocks;
        QVector<WideBlock> wideBlocks;
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
