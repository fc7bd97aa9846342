// Whatever is measured, on a chart of any size and scale: the strokes of a curve are finite, and no more than
// the segments that it has.

#include "fuzz/fuzztarget.h"

#include "chart/lines/curvepainter.h"
#include "chart/lines/curvestrokes.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <cmath>
#include <limits>

namespace {

constexpr QSize imageSize(160, 90);

// Now something near, now any double there is.
double numberNear(double middle, double reach, FuzzInput& input)
{
    const int kind = input.byte();
    if (kind == 0) {
        return input.number();
    }
    return middle + reach * ((kind - 128) / 128.0);
}

PlotMapping mappingOf(FuzzInput& input)
{
    PlotMapping mapping;
    mapping.left = input.below(100);
    mapping.right = mapping.left + input.byte();
    mapping.top = input.below(60);
    mapping.bottom = mapping.top + input.byte();
    mapping.xMax = numberNear(1000.0, 1000.0, input);
    mapping.xMin = mapping.xMax - numberNear(500.0, 500.0, input);
    mapping.yMin = numberNear(0.0, 1000.0, input);
    mapping.yMax = mapping.yMin + numberNear(500.0, 500.0, input);
    return mapping;
}

QTransform transformOf(FuzzInput& input)
{
    static const QVector<QTransform> ways = {QTransform(), QTransform::fromScale(1.25, 1.25),
        QTransform::fromScale(2.0, 2.0), QTransform::fromScale(0.01, 3.0),
        QTransform::fromTranslate(3.5, -7.25), QTransform(-1, 0, 0, 1, 160, 0),
        QTransform(0, 1, -1, 0, 90, 0), QTransform(1, 0.2, -0.2, 1, 10, 0)};
    return ways[input.below(ways.size())];
}

// A point is the next second and near the last value, unless the input says otherwise.
void addPoints(PointBuffer& points, FuzzInput& input)
{
    TPoint point = {0.0, 500.0};
    while (!input.isAtEnd()) {
        const int drawn = input.byte();
        switch (drawn & 7) {
        case 0:
            point.sec = input.number();
            break;
        case 1:
            point.degC = input.number();
            break;
        case 2:
            point.sec -= drawn;
            break;
        case 3:
            points.append({point.sec, std::numeric_limits<double>::quiet_NaN()});
            break;
        default:
            point.sec += (drawn & 7) / 8.0;
            point.degC += (drawn >> 3) - 16;
            break;
        }
        points.append(point);
    }
}

bool isFinite(double a, double b, double c, double d)
{
    return std::isfinite(a) && std::isfinite(b) && std::isfinite(c) && std::isfinite(d);
}

void checkStrokes(const PointBuffer& points, const PlotMapping& mapping, const CurvePen& pen)
{
    const int first = points.firstIndex(mapping.xMin);
    const int last = points.lastIndex(first, mapping.xMax);
    require(first >= 0 && last < qMax(points.size(), 1), "the part that shows is there");
    const CurveStrokes strokes = curveStrokes(points, mapping, first, last, pen);
    for (const QRectF& fill : strokes.fills) {
        require(isFinite(fill.x(), fill.y(), fill.width(), fill.height()), "a rectangle is finite");
        require(fill.width() >= 0.0 && fill.height() >= 0.0, "a rectangle has its corners in order");
    }
    for (const QLineF& line : strokes.lines) {
        require(isFinite(line.x1(), line.y1(), line.x2(), line.y2()), "a line is finite");
    }
    if (pen.uprights == Uprights::NotGathered) {
        require(strokes.lines.size() + strokes.fills.size() <= qMax(last - first, 0),
            "there are no more lines than segments");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPrepared = (prepareFuzzing(), true);
    Q_UNUSED(isPrepared)
    FuzzInput input(data, size);
    const PlotMapping mapping = mappingOf(input);
    const QTransform transform = transformOf(input);
    const double width = input.below(2) == 0 ? 1.0 : 3.0;
    const auto mode = input.below(2) == 0 ? PointBuffer::DropOldest : PointBuffer::ThinOut;
    PointBuffer points(2 + input.byte(), 1 + input.below(128), mode);
    addPoints(points, input);

    for (const Uprights uprights : {Uprights::Filled, Uprights::Drawn, Uprights::NotGathered}) {
        checkStrokes(points, mapping, {width, width, uprights});
    }
    QImage image(imageSize, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setTransform(transform);
    painter.setClipRect(QRectF(QPointF(mapping.left, mapping.top), QPointF(mapping.right, mapping.bottom)));
    paintCurve(painter, points, mapping, QPen(Qt::black, width));
    return 0;
}
