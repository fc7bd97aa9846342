#pragma once

#include <algorithm>
#include <cmath>

/// A pixel position as a whole number, truncated toward zero. It stays a double, and no further away than any
/// line's slope could show, so that it is safe to calculate with; NaN counts as far away.
inline double truncatedPixel(double position)
{
    constexpr double fitsInt = 2147483647.0;
    constexpr double farAway = 1e15;
    if (position > -fitsInt && position < fitsInt) {
        return static_cast<int>(position); // quicker than std::trunc(), which is a call
    }
    // In this order NaN becomes -farAway.
    return std::trunc(std::max(-farAway, std::min(position, farAway)));
}

/// The same as an int, for what is drawn in place (grid, labels): what does not fit stays outside of every
/// widget.
inline int pixelOf(double position)
{
    constexpr double outside = 1 << 26;
    return static_cast<int>(std::clamp(truncatedPixel(position), -outside, outside));
}

/// How data values become pixel positions and back: a pixel rectangle and the data rectangle that it shows.
/// x pixels grow to the right, y pixels grow downwards. Nothing is rounded unless it says so, and a rectangle
/// without extent gives what the division by zero gives.
struct PlotMapping
{
    double left = 0.0; ///< pixels
    double right = 0.0;
    double top = 0.0;
    double bottom = 0.0;
    double xMin = 0.0; ///< data
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;

    double pixelsPerX() const { return (right - left) / (xMax - xMin); }
    double pixelsPerY() const { return (bottom - top) / (yMax - yMin); }
    double xPerPixel() const { return (xMax - xMin) / (right - left); }
    double yPerPixel() const { return (yMax - yMin) / (bottom - top); }

    double pixelX(double x) const { return left + pixelsPerX() * (x - xMin); }
    double pixelY(double y) const { return bottom - pixelsPerY() * (y - yMin); }
    double dataX(double pixel) const { return xMin + xPerPixel() * (pixel - left); }
    double dataY(double pixel) const { return yMin + yPerPixel() * (bottom - pixel); }

    /// The pixel column and the pixel row that a point stands on: truncated.
    double column(double x) const { return truncatedPixel(pixelX(x)); }
    double row(double y) const { return truncatedPixel(pixelY(y)); }
};
