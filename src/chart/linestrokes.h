#pragma once

#include "chart/devicecolumns.h"
#include "chart/penshape.h"
#include "chart/plotmapping.h"
#include "chart/pointbuffer.h"

#include <QLine>
#include <QVector>

/// What to draw for one channel.
struct LineStrokes
{
    QVector<QLine> lines; ///< with the pen, in pixels of the widget
    DeviceStrokes uprights; ///< in pixels of the device
};

/// The strokes that give the very pixels of drawing the segment from each point `first` to `last` - 1 to the
/// next point, ends truncated toward zero, one by one: but a few strokes a pixel column, however many points
/// there are. Segments from or to a point that is not finite are not drawn.
LineStrokes lineStrokes(
    const PointBuffer& buffer, const PlotMapping& mapping, int first, int last, const PenShape& pen);

/// The segment between two whole pixels. An end that does not fit an int is moved along the segment to where
/// it does; the part in sight stays. Null when the whole segment is out there.
bool segmentLine(double x1, double y1, double x2, double y2, QLine& line);
