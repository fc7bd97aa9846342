#pragma once

#include "chart/plotmapping.h"
#include "chart/pointbuffer.h"

/// Neighbouring points that fall into one pixel column. The positions are whole pixels (see wholePixel()).
struct PixelColumn
{
    int first; ///< index of the first point
    int last;
    double x;
    double entry; ///< y of the first point
    double exit; ///< y of the last point
    double top; ///< the smallest y
    double bottom; ///< the largest y
    bool drawable; ///< false for a point that is not finite: no segment leads to it or from it
    bool merged; ///< its segments are drawn as one vertical line from top to bottom

    bool hasSegment() const { return last > first; }
};
Q_DECLARE_TYPEINFO(PixelColumn, Q_PRIMITIVE_TYPE);

/// Gathers the points `first` to `last` (both included) into pixel columns, in order.
///
/// Truncation of a growing map is a growing map: while the seconds do not step back, the points of a column
/// follow each other, its ends are found by searching, and its extremes are those of the values. Where the
/// clock stepped back (or a point is not finite) a new column begins, so the line goes back to the left
/// there, segment by segment in order of arrival, exactly as if each were drawn on its own.
QVector<PixelColumn> pixelColumns(const PointBuffer& buffer, const PlotMapping& mapping, int first, int last);
