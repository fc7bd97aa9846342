#include "chart/linestrokes.h"

#include "chart/columnrows.h"
#include "chart/pixelcolumns.h"
#include "chart/repeatedpixels.h"
#include "chart/rimcolumns.h"

#include <cmath>
#include <limits>

namespace {

// Far outside of every widget, near enough for the arithmetic of rectangles.
constexpr int outOfSight = 1 << 26;

bool fitsInt(double whole)
{
    return std::abs(whole) <= std::numeric_limits<int>::max();
}

QLine verticalLine(double x, double top, double bottom)
{
    const int column = static_cast<int>(x);
    return {column, pixelWithin(top, outOfSight), column, pixelWithin(bottom, outOfSight)};
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

// The vertical lines of the columns `from` to `to`, which share the rows `core`: the shared part between the
// middle lines of the outer columns is one rectangle, and lines do its rim, where the pen's width counts.
void addBand(const QVector<PixelColumn>& columns, int from, int to, const Rows& core, LineStrokes& strokes)
{
    const QLine left = verticalLine(columns.at(from).x, core.top, core.bottom);
    const QLine right = verticalLine(columns.at(to).x, core.top, core.bottom);
    strokes.fills.append(QRect(left.x1(), left.y1(), right.x1() - left.x1(), left.y2() - left.y1()));
    for (int i = from; i <= to; ++i) {
        const PixelColumn& column = columns.at(i);
        if (i == from || i == to) {
            strokes.lines.append(verticalLine(column.x, column.top, column.bottom));
            continue;
        }
        strokes.lines.append(verticalLine(column.x, column.top, core.top + 1.0));
        strokes.lines.append(verticalLine(column.x, core.bottom - 1.0, column.bottom));
    }
}

// The segments within columns: together they cover each column from its top to its bottom.
void addVerticals(const QVector<PixelColumn>& columns, LineStrokes& strokes)
{
    constexpr int widestBand = 32;
    constexpr int narrowestBand = 3;
    constexpr double lowestBand = 8.0; // rows

    int from = 0;
    while (from < columns.size()) {
        const PixelColumn& column = columns.at(from);
        if (!column.merged || !fitsInt(column.x)) {
            ++from;
            continue;
        }
        Rows core = commonRows(columns, from, from);
        int to = from;
        while (to + 1 < columns.size() && to - from < widestBand) {
            const Rows own = commonRows(columns, to, to + 1);
            const Rows shared{std::max(core.top, own.top), std::min(core.bottom, own.bottom)};
            if (shared.count() < lowestBand || !fitsInt(columns.at(to + 1).x)) {
                break;
            }
            core = shared;
            ++to;
        }
        if (to - from + 1 < narrowestBand) {
            strokes.lines.append(verticalLine(column.x, column.top, column.bottom));
            ++from;
            continue;
        }
        addBand(columns, from, to, core, strokes);
        from = to + 1;
    }
}

// Whether the segment from column `index` - 1 to `index` adds no pixel to the vertical lines around it.
bool isCovered(const QVector<PixelColumn>& columns, int index, const PenShape& pen)
{
    const double from = columns.at(index - 1).exit;
    const double to = columns.at(index).entry;
    const double top = std::min(from, to);
    const double bottom = std::max(from, to);
    if (pen.isThin()) {
        return commonRows(columns, index - 1, index).contains(top, bottom);
    }
    // The corners of a slanting wide stroke reach a little over its ends, to the sides and beyond.
    return commonRows(columns, index - 2, index + 1).contains(top - 1.0, bottom + 1.0);
}

// The segments that lead from one column to the next.
void addConnections(const QVector<PixelColumn>& columns, const PenShape& pen, LineStrokes& strokes)
{
    for (int i = 1; i < columns.size(); ++i) {
        const PixelColumn& before = columns.at(i - 1);
        const PixelColumn& here = columns.at(i);
        QLine line;
        if (before.drawable && here.drawable && !isCovered(columns, i, pen)
            && segmentLine(before.x, before.exit, here.x, here.entry, line)) {
            strokes.lines.append(line);
        }
    }
}

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
    QVector<PixelColumn> columns = pixelColumns(buffer, mapping, first, last);
    LineStrokes strokes;
    takeRimColumns(buffer, mapping, pen, columns, strokes);
    addVerticals(columns, strokes);
    addConnections(columns, pen, strokes);
    addRepeatedPixels(buffer, mapping, columns, pen, strokes);
    return strokes;
}
