// The painting of the chart.

#include "chart/axisticks.h"
#include "chart/lines/curvepainter.h"
#include "chart/tshowview.h"

#include <QPainter>

namespace {

int truncated(double length)
{
    return static_cast<int>(length);
}

// Where everything stands in a widget of w by h pixels.
struct Layout
{
    Layout(int w, int h)
        : left(truncated(0.1 * w))
        , right(w - truncated(0.03 * w))
        , top(truncated(0.05 * h))
        , bottom(h - truncated(0.08 * h))
        , rightMargin(truncated(0.03 * w))
        , unitX(truncated(0.02 * w))
        , unitY(truncated(0.02 * h))
    {
    }

    int left; // the plot rectangle
    int right;
    int top;
    int bottom;
    int rightMargin;
    int unitX; // the labels' measure
    int unitY;
};

struct Grid
{
    AxisTicks::Ticks temperature;
    AxisTicks::Ticks age; // counted back from now
    AxisTicks::TimeUnit unit;
    double nowSec;

    double degC(qint64 k) const { return static_cast<double>(k) * temperature.step; }
    double ageSec(qint64 k) const { return static_cast<double>(k) * age.step; }
};

Grid gridOf(const ChartView& view, double nowSec)
{
    const AxisTicks::TimeUnit unit = AxisTicks::timeUnit(view.xSpan);
    const double stepY = AxisTicks::decadeStep(view.yMax() - view.yMin(), 1.0);
    const double stepX = AxisTicks::decadeStep(view.xSpan, unit.baseStep);
    return {AxisTicks::ticks(view.yMin(), view.yMax(), stepY),
        AxisTicks::ticks(nowSec - view.xMax(nowSec), nowSec - view.xMin(nowSec), stepX), unit, nowSec};
}

void paintFrame(QPainter& painter, const Layout& at)
{
    painter.drawLine(at.left, at.top, at.right, at.top);
    painter.drawLine(at.right, at.top, at.right, at.bottom);
    painter.drawLine(at.left, at.bottom, at.right, at.bottom);
    painter.drawLine(at.left, at.top, at.left, at.bottom);
}

void paintGrid(QPainter& painter, const Layout& at, const Grid& grid, const ChCoord& coord)
{
    for (qint64 k = grid.temperature.first; k <= grid.temperature.last; ++k) {
        const int y = pixelOf(coord.pixelY(grid.degC(k)));
        painter.drawLine(at.left, y, at.right, y);
    }
    for (qint64 k = grid.age.first; k <= grid.age.last; ++k) {
        const int x = pixelOf(coord.pixelX(grid.nowSec - grid.ageSec(k)));
        painter.drawLine(x, at.top, x, at.bottom);
    }
}

void paintLabels(
    QPainter& painter, const Layout& at, const Grid& grid, const ChCoord& coord, const QString& unitName)
{
    constexpr int rightAligned = Qt::AlignRight | Qt::AlignVCenter;
    constexpr int centred = Qt::AlignCenter;
    const QString number = QStringLiteral("%1");
    QFont font;

    const int half = at.unitY / 2;
    for (qint64 k = grid.temperature.first; k <= grid.temperature.last; ++k) {
        const QRectF box(0, pixelOf(coord.pixelY(grid.degC(k))) - half, at.left - at.unitX, 2 * half);
        ChCoord::drawFitted(painter, box, rightAligned, ChCoord::FitBox, number.arg(grid.degC(k)), font);
    }
    for (qint64 k = grid.age.first; k <= grid.age.last; ++k) {
        const int x = pixelOf(coord.pixelX(grid.nowSec - grid.ageSec(k)));
        const QRectF box(x - 5 * at.unitX, at.bottom + 0.5 * at.unitY, 10 * at.unitX, at.unitY);
        const QString text = number.arg(grid.ageSec(k) / grid.unit.divisor);
        ChCoord::drawFitted(painter, box, centred, ChCoord::FitBox, text, font);
    }
    const QRectF box(
        at.right - 5 * at.unitX, at.bottom + 1.6 * at.unitY, at.rightMargin + 4 * at.unitX, at.unitY);
    const QString caption = QStringLiteral("[%1]").arg(unitName);
    ChCoord::drawFitted(painter, box, rightAligned, ChCoord::FitBox, caption, font);
}

} // namespace

void TShowView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Layout at(width(), height());
    const double now = nowSec();

    painter.setClipRect(QRect(QPoint(at.left - 1, at.top - 1), QPoint(at.right, at.bottom)));
    coord.setPixelRect(at.left, at.top, at.right, at.bottom);
    coord.setDataRect(view.xMin(now), view.yMin(), view.xMax(now), view.yMax());
    paintCurves(painter);

    const Grid grid = gridOf(view, now);
    painter.setPen(QPen(QColor(0, 0, 0), 1));
    paintFrame(painter, at);
    paintGrid(painter, at, grid, coord);

    painter.setClipRect(QRect(QPoint(0, 0), QPoint(width() - 1, height() - 1)));
    paintLabels(painter, at, grid, coord, unitNames.at(grid.unit.index));
}

void TShowView::paintCurves(QPainter& painter) const
{
    for (int channel = 0; channel < series.size(); ++channel) {
        if (isShown(channel)) {
            const QPen pen(colorOf(channel), channel == selected ? 3 : 1);
            paintCurve(painter, series.at(channel), coord.mapping(), pen);
        }
    }
}
