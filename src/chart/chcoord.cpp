#include "chart/chcoord.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

double limited(double value, double a, double b)
{
    return std::max(std::min(a, b), std::min(value, std::max(a, b)));
}

// How many times larger than its box the text is.
double fitScale(const QRectF& measured, const QRectF& box)
{
    const double scaleX = box.width() != 0.0 ? measured.width() / box.width() : 1.0;
    if (box.height() != 0.0) {
        return std::max(scaleX, measured.height() / box.height());
    }
    return scaleX > 1.0 && box.width() != 0.0 ? scaleX : 1.0;
}

// The point size for the text: a whole number when it is fitted, 0 when it cannot be shown.
double shownSize(
    QPainter& painter, const QRectF& box, int flags, ChCoord::FitMode mode, const QString& text, double size)
{
    constexpr double largestSize = 10000.0; // larger fonts than any box's are only slow

    if (mode == ChCoord::AsIs) {
        return size;
    }
    const QRectF room(box.x(), box.y() + box.height(), 1000.0, 1000.0);
    const double fitted = size / fitScale(painter.boundingRect(room, flags, text), box);
    return fitted >= 1.0 ? std::trunc(std::min(fitted, largestSize)) : 0.0;
}

} // namespace

ChCoord::ChCoord(QObject* parent)
    : QObject(parent)
    , colors{QColor(0, 220, 220), QColor(170, 255, 170), QColor(140, 180, 140), QColor(0, 0, 0)}
{
}

void ChCoord::setPixelRect(double left, double top, double right, double bottom)
{
    map.left = left;
    map.top = top;
    map.right = right;
    map.bottom = bottom;
}

void ChCoord::setDataRect(double xMin, double yMin, double xMax, double yMax)
{
    map.xMin = xMin;
    map.yMin = yMin;
    map.xMax = xMax;
    map.yMax = yMax;
}

void ChCoord::setSavedRect(double xMin, double yMin, double xMax, double yMax)
{
    setSavedX(xMin, xMax);
    setSavedY(yMin, yMax);
}

void ChCoord::setSavedX(double xMin, double xMax)
{
    saved.xMin = xMin;
    saved.xMax = xMax;
}

void ChCoord::setSavedY(double yMin, double yMax)
{
    saved.yMin = yMin;
    saved.yMax = yMax;
}

void ChCoord::restoreRect()
{
    restoreX();
    restoreY();
}

void ChCoord::restoreX()
{
    map.xMin = saved.xMin;
    map.xMax = saved.xMax;
}

void ChCoord::restoreY()
{
    map.yMin = saved.yMin;
    map.yMax = saved.yMax;
}

double ChCoord::dataXClamped(double pixel) const
{
    return limited(dataX(pixel), map.xMin, map.xMax);
}

double ChCoord::dataYClamped(double pixel) const
{
    return limited(dataY(pixel), map.yMin, map.yMax);
}

double ChCoord::pixelYIn(double value, double a, double b) const
{
    return map.bottom - (map.bottom - map.top) * (value - a) / (b - a);
}

AxisTicks::OrderedRange ChCoord::orderedYRange(int n) const
{
    return AxisTicks::orderedRange(map.yMin, map.yMax, n);
}

void ChCoord::drawFitted(
    QPainter& painter, const QRectF& box, int flags, FitMode mode, const QString& text, QFont& font)
{
    const double sizeBefore = font.pointSizeF();
    const double size = shownSize(painter, box, flags, mode, text, sizeBefore);
    if (size <= 0.0) {
        return;
    }
    font.setPointSizeF(size);
    painter.setFont(font);
    painter.drawText(box, flags, text);
    font.setPointSizeF(sizeBefore);
    painter.setFont(font);
}

QRectF ChCoord::measureFitted(
    QPainter& painter, const QRectF& box, int flags, FitMode mode, const QString& text, QFont& font)
{
    const double sizeBefore = font.pointSizeF();
    const double size = shownSize(painter, box, flags, mode, text, sizeBefore);
    if (size <= 0.0) {
        return {};
    }
    font.setPointSizeF(size);
    painter.setFont(font);
    const QRectF covered = painter.boundingRect(box, flags, text);
    font.setPointSizeF(sizeBefore);
    painter.setFont(font);
    return covered;
}
