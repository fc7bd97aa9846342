#include "chart/penshape.h"

#include <cmath>

namespace {

// Few enough binary places for exact arithmetic.
bool isShort(double value)
{
    return value * 64.0 == std::floor(value * 64.0) && std::abs(value) < 1 << 20;
}

} // namespace

PenShape::PenShape(int width, double scale, double originX, double originY)
    : penWidth(width)
    , deviceScale(scale)
    , leftEdge(originX)
    , topEdge(originY)
    , half(0.5 * width * scale)
    , dotHalf(half * scale)
    , slack(0.0)
    , isThin(width == 1 && scale == 1.0)
    , isExact(isShort(scale) && isShort(originX) && isShort(originY))
{
    if (!isThin) {
        // A square on its corner, and the toolkit's rounding to 64ths of a pixel.
        slack = half * (std::sqrt(2.0) - 1.0) + 0.1;
    }
}

PixelSpan PenShape::reachedColumns(double from, double to) const
{
    return between(deviceX(std::min(from, to)) - half - slack, deviceX(std::max(from, to)) + half + slack);
}

PixelSpan PenShape::reachedRows(double top, double bottom) const
{
    return between(deviceY(top) - half - slack, deviceY(bottom) + half + slack);
}

PixelSpan PenShape::rowsWithin(const PixelSpan& rows) const
{
    // The other way round from rows(); an edge on a pixel's centre counts as outside.
    constexpr double clearOfCentre = 1e-6;
    const double first = (rows.first - 0.5 + half - topEdge) / deviceScale + clearOfCentre;
    const double last = (rows.last + 1.5 - half - topEdge) / deviceScale - clearOfCentre;
    return {-wholeWithin(-first), wholeWithin(last)};
}

QRect PenShape::area(double left, double top, double right, double bottom) const
{
    return QRect(QPoint(wholeWithin(deviceX(left)), wholeWithin(deviceY(top))),
        QPoint(wholeWithin(deviceX(right + 1.0)), wholeWithin(deviceY(bottom + 1.0))));
}

bool PenShape::isCertainEdge(double edge, const PixelSpan& sight) const
{
    constexpr double clearOfCentre = 1e-6;
    // The toolkit's half width is the result of some six roundings, each by half a unit in the last place at
    // most. From here on their sum is less than that of the edge's coordinate.
    const double roundingIsLost = 16.0 * dotHalf;
    if (edge < sight.first - 1.0 || edge > sight.last + 2.0) {
        return true;
    }
    if (deviceScale < 1.0) {
        return false; // narrower than a pixel: other rules
    }
    const double offCentre = std::abs(edge - 0.5 - std::round(edge - 0.5));
    return offCentre > clearOfCentre || (isExact && edge > roundingIsLost);
}
