#include "chart/lines/m4columns.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

// The last point of the column that begins at `first`, of the points before `end`, which belong to one
// stretch. Points come at an even pace: the search starts at `length` points, those of the column before.
int lastOfColumn(const PointBuffer& points, const PlotMapping& mapping, int first, int end, int length)
{
    const double x = mapping.column(points.at(first).sec);
    constexpr int longestStep = 1 << 24; // twice of it is still an int
    int inside = first;
    int outside = end;
    int probe = std::min(first + length, end - 1);
    for (int step = 1; outside - inside > 1; step = std::min(2 * step, longestStep)) {
        if (mapping.column(points.at(probe).sec) == x) {
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
    return inside;
}

} // namespace

QVector<M4Column> m4Columns(
    const PointBuffer& points, const PlotMapping& mapping, int first, int last, bool eachAlone)
{
    QVector<M4Column> columns;
    bool isJoined = false;
    int length = 1;
    int next = first;
    while (next <= last) {
        if (!points.isFinite(next)) {
            isJoined = false;
            ++next;
            continue;
        }
        const int stretchEnd = std::min(points.stretchEnd(next), last + 1);
        while (next < stretchEnd) {
            const int lastInside = eachAlone ? next : lastOfColumn(points, mapping, next, stretchEnd, length);
            const ValueRange range = points.range(next, lastInside);
            columns.append({next, lastInside, mapping.column(points.at(next).sec),
                mapping.row(points.at(next).degC), mapping.row(points.at(lastInside).degC),
                {mapping.row(range.highest), mapping.row(range.lowest)}, isJoined});
            isJoined = true;
            length = lastInside - next + 1;
            next = lastInside + 1;
        }
    }
    return columns;
}

RowRange sharedRows(const QVector<M4Column>& columns, int from, int to)
{
    constexpr RowRange none{infinite, -infinite};
    if (from < 0 || to >= columns.size()) {
        return none;
    }
    RowRange shared{-infinite, infinite};
    for (int i = from; i <= to; ++i) {
        const M4Column& column = columns.at(i);
        if (!column.hasUpright() || column.x - columns.at(from).x != i - from) {
            return none;
        }
        shared.top = std::max(shared.top, column.rows.top);
        shared.bottom = std::min(shared.bottom, column.rows.bottom);
    }
    return shared;
}

QVector<RowRange> repeatedRows(const PointBuffer& points, const PlotMapping& mapping, const M4Column& column,
    const RowRange& limits, const RowRange& covered)
{
    const RowRange open{std::max(column.rows.top, limits.top), std::min(column.rows.bottom, limits.bottom)};
    if (open.isEmpty() || covered.contains(open)) {
        return {};
    }
    std::vector<bool> isRepeated(static_cast<std::size_t>(open.bottom - open.top + 1.0), false);
    double before = column.entry;
    for (int i = column.first + 1; i <= column.last; ++i) {
        const double row = mapping.row(points.at(i).degC);
        if (row == before && open.contains({row, row}) && !covered.contains({row, row})) {
            isRepeated[static_cast<std::size_t>(row - open.top)] = true;
        }
        before = row;
    }
    QVector<RowRange> runs;
    for (std::size_t i = 0; i < isRepeated.size(); ++i) {
        if (!isRepeated[i]) {
            continue;
        }
        const double row = open.top + static_cast<double>(i);
        if (runs.isEmpty() || runs.constLast().bottom < row - 1.0) {
            runs.append({row, row});
        }
        runs.last().bottom = row;
    }
    return runs;
}
