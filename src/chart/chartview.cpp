#include "chart/chartview.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double wheelFactor = 0.9;

double zoomed(double span, bool closer)
{
    return closer ? span * wheelFactor : span / wheelFactor;
}

} // namespace

void ChartView::zoomX(bool closer)
{
    xSpan = std::clamp(zoomed(xSpan, closer), shortestXSpan, longestXSpan);
}

void ChartView::zoomY(bool closer, double fixed)
{
    const double before = ySpan;
    const double after = std::max(zoomed(before, closer), shortestYSpan);
    if (!std::isfinite(after)) {
        return; // no way back would lead from infinity
    }
    ySpan = after;
    const double growth = (ySpan - before) / before;
    const double shift = (fixed + yDragShift + yOffset) * growth;
    if (std::isfinite(shift)) {
        yOffset += shift;
    }
}

void ChartView::dragX(double shiftSec)
{
    if (std::isfinite(shiftSec)) {
        xDragShift = shiftSec;
    }
}

void ChartView::dragY(double shiftDegC)
{
    if (std::isfinite(shiftDegC)) {
        yDragShift = shiftDegC;
    }
}

void ChartView::finishXDrag()
{
    xOffset = std::max(xOffset + xDragShift, 0.0);
    xDragShift = 0.0;
}

void ChartView::finishYDrag()
{
    yOffset += yDragShift;
    yDragShift = 0.0;
}
