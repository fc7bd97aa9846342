#include "chart/linestrokes.h"

#include "chart/pixelcolumns.h"
#include "chart/repeatedpixels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool fitsInt(double whole)
{
    return std::abs(whole) <= std::numeric_limits<int>::max();
}

// Clips the parameter range of start + t * delta to [-limit, limit]; false when nothing is left.
bool clip(double start, double delta, double limit, double& from, double& to)
{
    if (delta == 0.0) {
        return std::abs(start) <= limit;
    }
    const double a = (-limit - start) / delta;
    const double b = (limit - start) / delta;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
    return from <= to;
}

class Strokes
{
public:
    Strokes(const PointBuffer& points, const PlotMapping& map, const PenShape& linePen)
        : buffer(points)
        , mapping(map)
        , pen(linePen)
        , sight(linePen.area(map.left - 1.0, map.top - 1.0, map.right, map.bottom))
        , drawn(sight)
    {
    }

    LineStrokes of(int first, int last)
    {
        QVector<PixelColumn> columns = pixelColumns(buffer, mapping, first, last);
        for (PixelColumn& column : columns) {
            addColumn(column);
        }
        if (pen.hasWideDots()) {
            addRepeatedPixels(buffer, mapping, columns, pen, drawn);
        }
        for (int i = 1; i < columns.size(); ++i) {
            addConnection(columns.at(i - 1), columns.at(i));
        }
        return {lines, drawn.strokes()};
    }

private:
    // The segments within a column: together they cover it from its top to its bottom.
    void addColumn(PixelColumn& column)
    {
        if (!column.merged) {
            return;
        }
        if (!isCertain(column)) {
            column.merged = false;
            addSegments(column);
            return;
        }
        const bool isDot = column.top == column.bottom;
        drawn.add(
            isDot ? pen.dotColumns(column.x) : pen.columns(column.x), pen.rows(column.top, column.bottom));
    }

    bool isCertain(const PixelColumn& column) const
    {
        const PixelSpan rows{sight.top(), sight.bottom()};
        return pen.isCertainColumn(column.x, {sight.left(), sight.right()})
            && pen.isCertainRow(column.top, rows) && pen.isCertainRow(column.bottom, rows);
    }

    void addSegments(const PixelColumn& column)
    {
        const PixelMap pixels(mapping);
        double before = column.entry;
        for (int i = column.first + 1; i <= column.last; ++i) {
            const double here = wholePixel(pixels.y(buffer.at(i).degC));
            addSegment(column.x, before, column.x, here);
            before = here;
        }
    }

    // The segment that leads from one column to the next.
    void addConnection(const PixelColumn& before, const PixelColumn& here)
    {
        if (!before.drawable || !here.drawable) {
            return;
        }
        if (!isCovered(before, here)) {
            addSegment(before.x, before.exit, here.x, here.entry);
        }
    }

    // Whether that segment adds no pixel to the upright lines around it.
    bool isCovered(const PixelColumn& before, const PixelColumn& here) const
    {
        const double top = std::min(before.exit, here.entry);
        const double bottom = std::max(before.exit, here.entry);
        const bool isWithinBoth
            = std::max(before.top, here.top) <= top && bottom <= std::min(before.bottom, here.bottom);
        return before.merged && here.merged && isWithinBoth && std::abs(here.x - before.x) <= 1.0
            && drawn.covers(pen.reachedColumns(before.x, here.x), pen.reachedRows(top, bottom));
    }

    void addSegment(double x1, double y1, double x2, double y2)
    {
        QLine line;
        if (segmentLine(x1, y1, x2, y2, line)) {
            lines.append(line);
        }
    }

    const PointBuffer& buffer;
    const PlotMapping& mapping;
    const PenShape& pen;
    QRect sight; // the plot with a pixel more on the left and above, as it is clipped
    DeviceColumns drawn;
    QVector<QLine> lines;
};

} // namespace

bool segmentLine(double x1, double y1, double x2, double y2, QLine& line)
{
    double from = 0.0;
    double to = 1.0;
    const bool fits = fitsInt(x1) && fitsInt(y1) && fitsInt(x2) && fitsInt(y2);
    if (!fits) {
        constexpr double limit = 1 << 30;
        if (!clip(x1, x2 - x1, limit, from, to) || !clip(y1, y2 - y1, limit, from, to)) {
            return false;
        }
    }
    const auto at = [](double start, double end, double part) {
        const double place = part == 1.0 ? end : start + (end - start) * part;
        return pixelWithin(wholePixel(place), std::numeric_limits<int>::max());
    };
    line = QLine(at(x1, x2, from), at(y1, y2, from), at(x1, x2, to), at(y1, y2, to));
    return true;
}

LineStrokes lineStrokes(
    const PointBuffer& buffer, const PlotMapping& mapping, int first, int last, const PenShape& pen)
{
    return Strokes(buffer, mapping, pen).of(first, last);
}
