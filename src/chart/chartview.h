#pragma once

/// What part of time and temperature the chart shows, and how dragging and magnifying change it. Times in
/// seconds, temperatures in deg C. The view is anchored at its right edge, which follows the clock.
struct ChartView
{
    static constexpr double defaultXSpan = 300.0;
    static constexpr double defaultYSpan = 1000.0;
    static constexpr double shortestXSpan = 1.0;
    static constexpr double longestXSpan = 2592000.0; // 30 days
    static constexpr double shortestYSpan = 1.0;

    double xSpan = defaultXSpan;
    double xOffset = 0.0; ///< how far the right edge lies behind now
    double xDragShift = 0.0; ///< added to the offset while a drag lasts
    double ySpan = defaultYSpan;
    double yOffset = 0.0; ///< how far the lower edge lies below 0
    double yDragShift = 0.0;

    double xMax(double nowSec) const { return nowSec - xOffset - xDragShift; }
    double xMin(double nowSec) const { return xMax(nowSec) - xSpan; }
    double yMin() const { return -yOffset - yDragShift; }
    double yMax() const { return yMin() + ySpan; }

    /// One wheel step on the time axis; the right edge stays.
    void zoomX(bool closer);
    /// One wheel step on the temperature axis; the temperature `fixed` keeps its pixel. There is no upper
    /// limit: far out, the offset outgrows what a double resolves, and only reset() leads back.
    void zoomY(bool closer, double fixed);
    /// Shifts the view while a drag lasts. What is not finite (there was no paint yet to tell pixels by) is
    /// ignored, here and by zoomY().
    void dragX(double shiftSec);
    void dragY(double shiftDegC);
    /// Ends a drag along the time axis. The right edge never rests later than now.
    void finishXDrag();
    void finishYDrag();
    /// Back to the default view.
    void reset() { *this = ChartView(); }
};
