#pragma once

#include "chart/lines/pointbuffer.h"
#include "chart/plotmapping.h"

#include <QLineF>
#include <QRectF>
#include <QVector>

/// How the upright lines within pixel columns are drawn.
enum class Uprights {
    Filled, ///< as the rectangles that the pen sweeps: by far the quickest
    Drawn, ///< with the pen, for what may be shown so small that a rectangle gets lost between pixels
    NotGathered ///< not at all: every segment stays what it is
};

/// The pen of a curve, in pixels of the widget: solid, opaque, square caps, at most three pixels wide.
struct CurvePen
{
    double width = 1.0;
    double dotWidth = 1.0; ///< of a line without length; larger than `width` only where uprights are Filled
    Uprights uprights = Uprights::Filled;
};

/// What to draw for one curve, in pixels of the widget.
struct CurveStrokes
{
    QVector<QRectF> fills;
    QVector<QLineF> lines; ///< to be drawn with the pen
};

/// The few strokes that look like drawing the segment from each point `first` to `last` - 1 to the next point
/// by itself, ends truncated toward zero, within the plot rectangle and a pixel around it. They grow with the
/// columns, not with the points.
CurveStrokes curveStrokes(
    const PointBuffer& points, const PlotMapping& mapping, int first, int last, const CurvePen& pen);
