#pragma once

#include <QRect>

#include <algorithm>

/// Neighbouring whole pixels of the device, both ends included; none when last < first.
struct PixelSpan
{
    int first;
    int last;

    bool isEmpty() const { return last < first; }
    bool contains(const PixelSpan& other) const { return first <= other.first && other.last <= last; }
};

/// The pen of a chart line on its device: solid, opaque, square caps, not smoothed.
///
/// An upright line is drawn as a rectangle of device pixels: those whose centres lie less than half the pen's
/// width away from it. That is what the toolkit's raster engine does (Qt 5.15, QRasterizer::rasterizeLine and
/// QRasterPaintEngine::stroke), so whoever knows the rectangle need not have the line drawn.
class PenShape
{
public:
    /// `width` counts pixels of the widget, `scale` is device pixels a widget pixel, and the origin is where
    /// the widget stands on the device, in device pixels.
    explicit PenShape(int width = 1, double scale = 1.0, double originX = 0.0, double originY = 0.0);

    int width() const { return penWidth; }

    /// The device columns of an upright line in the widget's column `x`.
    PixelSpan columns(double x) const { return between(deviceX(x) - half, deviceX(x) + half); }
    /// The device columns of a line without length in the widget's column `x`: to the sides the toolkit
    /// applies the scale twice there, so on a scaled display it is wider than an upright line.
    PixelSpan dotColumns(double x) const { return between(deviceX(x) - dotHalf, deviceX(x) + dotHalf); }
    /// Whether there are columns in which it is wider at all.
    bool hasWideDots() const { return dotHalf > half; }
    /// The device rows of an upright line or a dot in the widget's rows `top` to `bottom`.
    PixelSpan rows(double top, double bottom) const
    {
        return between(deviceY(top) - half, deviceY(bottom) + half);
    }

    /// What a slanting line between the two columns or rows can reach: its corners stand out a little.
    PixelSpan reachedColumns(double from, double to) const;
    PixelSpan reachedRows(double top, double bottom) const;

    /// Rows of the widget in which a dot lies within the device rows `rows`, for certain: from `first` on, to
    /// `last`.
    PixelSpan rowsWithin(const PixelSpan& rows) const;

    /// The device pixels of the widget's rectangle from one pixel to another, both included.
    QRect area(double left, double top, double right, double bottom) const;

    /// Whether columns() and dotColumns() are certain for a line in the widget's column `x`, and rows() for
    /// one that ends in `row`, as far as the device columns or rows `sight` go. They are not where an edge of
    /// the line lies on a pixel's centre and the rounding errors of the toolkit, which depend on the line's
    /// length, are not lost in the size of the coordinate.
    bool isCertainColumn(double x, const PixelSpan& sight) const
    {
        return isThin
            || (areCertainEdges(deviceX(x), half, sight) && areCertainEdges(deviceX(x), dotHalf, sight));
    }
    bool isCertainRow(double row, const PixelSpan& sight) const
    {
        return isThin || areCertainEdges(deviceY(row), half, sight);
    }

private:
    static int wholeWithin(double value)
    {
        constexpr double farAway = 1 << 26; // outside of every device
        const double near = std::clamp(value, -farAway, farAway);
        const int whole = static_cast<int>(near);
        return whole > near ? whole - 1 : whole;
    }
    // The pixels whose centres lie between two edges.
    static PixelSpan between(double low, double high)
    {
        return {wholeWithin(low + 0.5), wholeWithin(high - 0.5)};
    }

    double deviceX(double x) const { return deviceScale * x + leftEdge; }
    double deviceY(double y) const { return deviceScale * y + topEdge; }
    bool areCertainEdges(double centre, double reach, const PixelSpan& sight) const
    {
        return isCertainEdge(centre - reach, sight) && isCertainEdge(centre + reach, sight);
    }
    bool isCertainEdge(double edge, const PixelSpan& sight) const;

    int penWidth;
    double deviceScale;
    double leftEdge; // where the widget begins on the device
    double topEdge;
    double half; // of the line's width, in device pixels
    double dotHalf; // of a dot's width
    double slack; // how far beyond `half` a slanting line reaches
    bool isThin; // the toolkit has exact integer arithmetic for such lines
    bool isExact; // no product or sum of coordinates is rounded
};
