#include "chart/devicecolumns.h"

#include <algorithm>

namespace {

PixelSpan common(const PixelSpan& a, const PixelSpan& b)
{
    return {std::max(a.first, b.first), std::min(a.last, b.last)};
}

bool touches(const PixelSpan& a, const PixelSpan& b)
{
    return !a.isEmpty() && !b.isEmpty() && a.first <= b.last + 1 && b.first <= a.last + 1;
}

PixelSpan united(const PixelSpan& a, const PixelSpan& b)
{
    return {std::min(a.first, b.first), std::max(a.last, b.last)};
}

void addLine(int column, const PixelSpan& rows, QVector<QLine>& lines)
{
    if (!rows.isEmpty()) {
        lines.append(QLine(column, rows.first, column, rows.last));
    }
}

} // namespace

DeviceColumns::DeviceColumns(const QRect& sight)
    : sightColumns{sight.left(), sight.right()}
    , sightRows{sight.top(), sight.bottom()}
    , runs(std::max(0, sight.width()), PixelSpan{0, -1})
    , others(runs)
{
}

void DeviceColumns::add(const PixelSpan& columns, const PixelSpan& rows)
{
    const PixelSpan seenRows = common(rows, sightRows);
    if (seenRows.isEmpty()) {
        return;
    }
    const PixelSpan seen = common(columns, sightColumns);
    for (int column = seen.first; column <= seen.last; ++column) {
        addTo(column, seenRows);
    }
}

void DeviceColumns::addTo(int column, const PixelSpan& rows)
{
    const int index = column - sightColumns.first;
    PixelSpan& run = runs[index];
    PixelSpan& other = others[index];
    if (run.isEmpty()) {
        run = rows;
    } else if (touches(run, rows)) {
        run = united(run, rows);
    } else if (touches(other, rows)) {
        other = united(other, rows);
    } else {
        addLine(column, other, apart);
        other = rows;
    }
    if (touches(run, other)) {
        run = united(run, other);
        other = PixelSpan{0, -1};
    }
}

bool DeviceColumns::covers(const PixelSpan& columns, const PixelSpan& rows) const
{
    const PixelSpan seenRows = common(rows, sightRows);
    if (seenRows.isEmpty()) {
        return true;
    }
    const PixelSpan seen = common(columns, sightColumns);
    for (int column = seen.first; column <= seen.last; ++column) {
        if (!runs.at(column - sightColumns.first).contains(seenRows)) {
            return false;
        }
    }
    return true;
}

PixelSpan DeviceColumns::sharedRows(const PixelSpan& columns) const
{
    PixelSpan shared = sightRows;
    const PixelSpan seen = common(columns, sightColumns);
    for (int column = seen.first; column <= seen.last; ++column) {
        shared = common(shared, runs.at(column - sightColumns.first));
    }
    if (shared.isEmpty()) {
        return shared;
    }
    constexpr int farAway = 1 << 26;
    return {shared.first == sightRows.first ? -farAway : shared.first,
        shared.last == sightRows.last ? farAway : shared.last};
}

DeviceStrokes DeviceColumns::strokes() const
{
    DeviceStrokes made;
    made.lines = apart;
    for (int i = 0; i < others.size(); ++i) {
        addLine(sightColumns.first + i, others.at(i), made.lines);
    }
    int index = 0;
    while (index < runs.size()) {
        index = runs.at(index).isEmpty() ? index + 1 : addBand(index, made);
    }
    return made;
}

// Adds the runs from `from` on that share enough rows, and gives the index after them: what they share is one
// rectangle, and lines do its rim. Filling a row is far quicker than setting the pixels of many columns.
int DeviceColumns::addBand(int from, DeviceStrokes& strokes) const
{
    constexpr int widestBand = 32;
    constexpr int narrowestBand = 3;
    constexpr int lowestBand = 8; // rows

    PixelSpan core = runs.at(from);
    int end = from + 1;
    while (end < runs.size() && end - from < widestBand) {
        const PixelSpan shared = common(core, runs.at(end));
        if (shared.last - shared.first + 1 < lowestBand) {
            break;
        }
        core = shared;
        ++end;
    }
    if (end - from < narrowestBand) {
        addLine(sightColumns.first + from, runs.at(from), strokes.lines);
        return from + 1;
    }
    strokes.fills.append(QRect(
        QPoint(sightColumns.first + from, core.first), QPoint(sightColumns.first + end - 1, core.last)));
    for (int i = from; i < end; ++i) {
        const int column = sightColumns.first + i;
        addLine(column, {runs.at(i).first, core.first - 1}, strokes.lines);
        addLine(column, {core.last + 1, runs.at(i).last}, strokes.lines);
    }
    return end;
}
