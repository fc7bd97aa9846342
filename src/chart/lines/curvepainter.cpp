#include "chart/lines/curvepainter.h"

#include "chart/lines/curvestrokes.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

Uprights uprightsOn(
    const QPaintEngine& engine, const QTransform& device, const PlotMapping& mapping, double width)
{
    // A fill that is thinner than a pixel of the device falls between two of them; rounding must not make one
    // of exactly a pixel thinner.
    constexpr double aPixel = 0.99;
    const double shrunk
        = std::min(std::hypot(device.m11(), device.m12()), std::hypot(device.m21(), device.m22()));
    if (engine.type() != QPaintEngine::Raster || shrunk * width < aPixel) {
        return Uprights::Drawn;
    }
    // Edges of a wide line fall on the centres of device pixels. Near the device's edge rounding errors
    // decide what that gives, from line to line; from here on they are lost in the size of the coordinate.
    constexpr double roundingIsLost = 8.0;
    const double leftOrTop = std::min(device.dx() + mapping.left, device.dy() + mapping.top) - 1.0;
    const bool isUncertain
        = width > 1.0 && device.type() <= QTransform::TxTranslate && leftOrTop < roundingIsLost;
    return isUncertain ? Uprights::NotGathered : Uprights::Filled;
}

CurvePen curvePen(const QPainter& painter, const PlotMapping& mapping, double width)
{
    const QTransform& device = painter.deviceTransform();
    const Uprights uprights = uprightsOn(*painter.paintEngine(), device, mapping, width);
    // On a scaled display the toolkit applies the scale twice to the width of a line without length.
    const bool isScaled = device.type() == QTransform::TxScale && device.m11() == device.m22();
    const double dotScale = uprights == Uprights::Filled && isScaled ? device.m11() : 1.0;
    return {width, dotScale * width, uprights};
}

} // namespace

void paintCurve(QPainter& painter, const PointBuffer& points, const PlotMapping& mapping, const QPen& pen)
{
    const int first = points.firstIndex(mapping.xMin);
    const int last = points.lastIndex(first, mapping.xMax);
    const CurveStrokes strokes
        = curveStrokes(points, mapping, first, last, curvePen(painter, mapping, pen.widthF()));
    for (const QRectF& upright : strokes.fills) {
        painter.fillRect(upright, pen.color());
    }
    painter.setPen(pen);
    painter.drawLines(strokes.lines);
}
