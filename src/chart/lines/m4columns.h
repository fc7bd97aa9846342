#pragma once

#include "chart/lines/pointbuffer.h"
#include "chart/plotmapping.h"

#include <QVector>

/// Neighbouring pixel rows of the widget, both ends included; whole numbers. None when bottom < top.
struct RowRange
{
    double top;
    double bottom;

    bool isEmpty() const { return bottom < top; }
    bool contains(const RowRange& other) const { return top <= other.top && other.bottom <= bottom; }
};
Q_DECLARE_TYPEINFO(RowRange, Q_PRIMITIVE_TYPE);

/// Neighbouring points that fall into one pixel column of the widget, by what shows of them: the pixels of
/// the first, the last, the highest and the lowest point (M4 aggregation: U. Jugel et al., "M4: a
/// visualization-oriented time series data aggregation", PVLDB 7(10), 2014).
struct M4Column
{
    int first; ///< index of the first point
    int last;
    double x; ///< the pixel column
    double entry; ///< row of the first point
    double exit; ///< row of the last point
    RowRange rows; ///< from the highest point to the lowest
    bool isJoined; ///< whether a segment leads here from the column before

    /// Whether there are segments within the column: together they are an upright line that fills its rows.
    bool hasUpright() const { return last > first; }
};
Q_DECLARE_TYPEINFO(M4Column, Q_PRIMITIVE_TYPE);

/// Gathers the points `first` to `last` (both included) into columns, in order; with `eachAlone` every point
/// is a column of its own, and the segments stay what they are.
///
/// Truncation of a growing map is a growing map: while the seconds do not step back, the points of a column
/// follow each other, its ends are found by searching, and its extremes are those of the values. Where the
/// clock stepped back a new column begins, and the curve goes back to the left. A point that is not finite
/// has no column, and no segment leads to it or from it.
QVector<M4Column> m4Columns(
    const PointBuffer& points, const PlotMapping& mapping, int first, int last, bool eachAlone = false);

/// The rows that the uprights of the columns `from` to `to` (indices, both included) all have. None unless
/// all these columns are there, have an upright and stand side by side, from left to right.
RowRange sharedRows(const QVector<M4Column>& columns, int from, int to);

/// The rows of a column on which a point falls on the pixel of the point before it, in runs from the top.
/// Those outside of `limits` and those in `covered` do not count.
QVector<RowRange> repeatedRows(const PointBuffer& points, const PlotMapping& mapping, const M4Column& column,
    const RowRange& limits, const RowRange& covered);
