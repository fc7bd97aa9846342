#pragma once

#include "chart/plotmapping.h"
#include "chart/pointbuffer.h"

#include <QLine>
#include <QRect>
#include <QVector>

/// The pen that strokes are made for: solid, opaque, square caps, not smoothed.
struct PenShape
{
    int width = 1; ///< pixels of the widget
    double scale = 1.0; ///< device pixels a widget pixel
    double originX = 0.0; ///< where the widget stands on the device, in device pixels
    double originY = 0.0;

    /// One device pixel wide: the toolkit has exact integer arithmetic for such lines.
    bool isThin() const { return width == 1 && scale == 1.0; }
};

/// What to draw for one channel: lines with the pen, rectangles filled with its colour.
struct LineStrokes
{
    QVector<QLine> lines;
    QVector<QRect> fills;
};

/// The strokes that give the very pixels of drawing the segment from each point `first` to `last` - 1 to the
/// next point, ends truncated toward zero, one by one: but a few strokes a pixel column, however many points
/// there are. Segments from or to a point that is not finite are not drawn.
LineStrokes lineStrokes(
    const PointBuffer& buffer, const PlotMapping& mapping, int first, int last, const PenShape& pen);

/// The segment between two whole pixels. An end that does not fit an int is moved along the segment to where
/// it does; the part in sight stays. Null when the whole segment is out there.
bool segmentLine(double x1, double y1, double x2, double y2, QLine& line);
