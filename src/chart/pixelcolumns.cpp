#include "chart/pixelcolumns.h"

#include <algorithm>

namespace {

class ColumnWalk
{
public:
    ColumnWalk(const PointBuffer& points, const PlotMapping& map)
        : buffer(points)
        , pixels(map)
    {
    }

    // The column that begins at `first`, of the points before `end`, which belong to one stretch.
    PixelColumn column(int first, int end)
    {
        PixelColumn found;
        found.first = first;
        found.x = wholePixel(pixels.x(buffer.at(first).sec));
        found.last = lastOfColumn(first, end, found.x);
        found.entry = row(buffer.at(first).degC);
        found.exit = row(buffer.at(found.last).degC);
        const ValueRange range = buffer.range(first, found.last);
        found.top = row(range.highest);
        found.bottom = row(range.lowest);
        found.drawable = true;
        found.merged = found.hasSegment();
        return found;
    }

private:
    double row(double degC) const { return wholePixel(pixels.y(degC)); }

    // Whether a point at or after the column's first one is still in column `x`.
    bool inColumn(int index, double x) const
    {
        const double position = pixels.x(buffer.at(index).sec);
        return x >= 0.0 ? position < x + 1.0 : wholePixel(position) == x;
    }

    // Points come at an even pace, so the search starts where the last column's length points to.
    int lastOfColumn(int first, int end, double x)
    {
        int inside = first;
        int outside = end;
        int probe = std::min(first + guess, end - 1);
        for (int step = 1; outside - inside > 1; step = std::min(2 * step, 1 << 24)) {
            if (inColumn(probe, x)) {
                inside = probe;
                probe = inside + step;
            } else {
                outside = probe;
                probe = outside - step;
            }
            if (probe <= inside || probe >= outside) {
                probe = inside + (outside - inside) / 2;
            }
        }
        guess = inside - first + 1;
        return inside;
    }

    const PointBuffer& buffer;
    const PixelMap pixels;
    int guess = 1;
};

PixelColumn gap(int index)
{
    return {index, index, 0.0, 0.0, 0.0, 0.0, 0.0, false, false};
}

} // namespace

QVector<PixelColumn> pixelColumns(const PointBuffer& buffer, const PlotMapping& mapping, int first, int last)
{
    QVector<PixelColumn> columns;
    columns.reserve(std::min(last - first + 1, pixelOf(mapping.right - mapping.left) + 4));
    ColumnWalk walk(buffer, mapping);
    int next = first;
    while (next <= last) {
        if (!buffer.isFinite(next)) {
            columns.append(gap(next));
            ++next;
            continue;
        }
        const int end = std::min(buffer.stretchEnd(next), last + 1);
        while (next < end) {
            columns.append(walk.column(next, end));
            next = columns.constLast().last + 1;
        }
    }
    return columns;
}
