#pragma once

#include <algorithm>

/// How data values become pixel positions and back: a pixel rectangle and the data rectangle that it shows.
/// x pixels grow to the right, y pixels grow downwards. Nothing is rounded here, and a rectangle without
/// extent gives what the division by zero gives.
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
};

/// The way from data to pixels alone, with the divisions done beforehand: the same results as the mapping's
/// own, for many points.
struct PixelMap
{
    explicit PixelMap(const PlotMapping& mapping)
        : left(mapping.left)
        , bottom(mapping.bottom)
        , xMin(mapping.xMin)
        , yMin(mapping.yMin)
        , perX(mapping.pixelsPerX())
        , perY(mapping.pixelsPerY())
    {
    }

    double x(double sec) const { return left + perX * (sec - xMin); }
    double y(double degC) const { return bottom - perY * (degC - yMin); }

    double left;
    double bottom;
    double xMin;
    double yMin;
    double perX;
    double perY;
};

/// wholePixel() for what does not fit an int.
double farPixel(double position);

/// A pixel position as a whole number, truncated toward zero. It stays a double, and no further away than any
/// line's slope could show, so that it is safe to calculate with; NaN counts as far away.
inline double wholePixel(double position)
{
    constexpr double fits = 2147483647.0;
    return position > -fits && position < fits ? static_cast<int>(position) : farPixel(position);
}

/// A whole pixel as an int, at most `limit` away from 0.
inline int pixelWithin(double wholePosition, int limit)
{
    return static_cast<int>(std::clamp(wholePosition, -1.0 * limit, 1.0 * limit));
}

/// Truncated toward zero and safe for any position, for what is drawn in place (grid, labels): what does not
/// fit stays outside of every widget.
inline int pixelOf(double position)
{
    return pixelWithin(wholePixel(position), 1 << 26);
}
