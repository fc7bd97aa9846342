#include "chart/lines/curvestrokes.h"

#include "chart/lines/m4columns.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double penReach = 16.0; // no stroke further outside of the plot reaches into it

struct StrokeMaker
{
    const PlotMapping& mapping;
    const CurvePen& pen;
    const QVector<M4Column>& columns;
    CurveStrokes result;

    CurveStrokes strokes(const PointBuffer& points)
    {
        // Of eight neighbours most rows are shared: a few large fills instead of eight.
        const int bandWidth = pen.uprights == Uprights::Filled ? 8 : 1;
        for (int i = 0; i < columns.size(); i += bandWidth) {
            addBand(i, std::min(i + bandWidth, columns.size()) - 1);
        }
        for (int i = 1; i < columns.size(); ++i) {
            addConnection(i);
        }
        for (int i = 0; pen.dotWidth > pen.width && i < columns.size(); ++i) {
            addDots(i, points);
        }
        return result;
    }

    RowRange rowsInReach() const { return {mapping.top - penReach, mapping.bottom + penReach}; }

    // An upright line, or several with the same rows side by side.
    void addUprights(double x1, double x2, const RowRange& rows, double width)
    {
        const double top = std::max(rows.top, rowsInReach().top);
        const double bottom = std::min(rows.bottom, rowsInReach().bottom);
        if (bottom < top || x2 < mapping.left - penReach || x1 > mapping.right + penReach) {
            return;
        }
        if (pen.uprights == Uprights::Filled) {
            result.fills.append(
                QRectF(x1 - 0.5 * width, top - 0.5 * pen.width, x2 - x1 + width, bottom - top + pen.width));
        } else {
            result.lines.append(QLineF(x1, top, x2, bottom));
        }
    }

    // The uprights of the columns `from` to `to`; the rows that they all share are filled at once.
    void addBand(int from, int to)
    {
        const RowRange core = sharedRows(columns, from, to);
        if (!core.isEmpty()) {
            addUprights(columns.at(from).x, columns.at(to).x, core, pen.width);
        }
        for (int i = from; i <= to; ++i) {
            const double x = columns.at(i).x;
            const RowRange& rows = columns.at(i).rows;
            if (!core.isEmpty()) {
                addUprights(x, x, {rows.top, core.top - 1.0}, pen.width);
                addUprights(x, x, {core.bottom + 1.0, rows.bottom}, pen.width);
            } else if (columns.at(i).hasUpright()) {
                addUprights(x, x, rows, pen.width);
            }
        }
    }

    // The segment that leads to a column from the one before, unless uprights cover it.
    void addConnection(int i)
    {
        const M4Column& from = columns.at(i - 1);
        const M4Column& to = columns.at(i);
        // A slanting line's corners reach 0.71 of the pen's width from its ends, an upright's sides 0.5: with
        // three pixels that is less than one pixel more.
        const RowRange rows{std::min(from.exit, to.entry) - 1.0, std::max(from.exit, to.entry) + 1.0};
        if (to.isJoined && !sharedRows(columns, i - 2, i + 1).contains(rows)) {
            result.lines.append(QLineF(from.x, from.exit, to.x, to.entry));
        }
    }

    // Points on the pixel of the point before them, where they show beside the uprights around them.
    void addDots(int i, const PointBuffer& points)
    {
        const double x = columns.at(i).x;
        const int neighbours = static_cast<int>(std::ceil(0.5 * (pen.dotWidth - pen.width)));
        const RowRange covered = sharedRows(columns, i - neighbours, i + neighbours);
        for (const RowRange& rows : repeatedRows(points, mapping, columns.at(i), rowsInReach(), covered)) {
            addUprights(x, x, rows, pen.dotWidth);
        }
    }
};

} // namespace

CurveStrokes curveStrokes(
    const PointBuffer& points, const PlotMapping& mapping, int first, int last, const CurvePen& pen)
{
    const bool eachAlone = pen.uprights == Uprights::NotGathered;
    const QVector<M4Column> columns = m4Columns(points, mapping, first, last, eachAlone);
    return StrokeMaker{mapping, pen, columns, {}}.strokes(points);
}
