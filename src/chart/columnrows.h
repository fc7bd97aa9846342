#pragma once

#include "chart/pixelcolumns.h"

#include <algorithm>

/// Rows of pixels, both ends included; none when bottom < top.
struct Rows
{
    double top;
    double bottom;

    double count() const { return bottom - top + 1.0; }
    bool contains(double from, double to) const { return top <= from && to <= bottom; }
};

/// The rows that the vertical lines of all the columns `from` to `to` cover. None when one of the columns is
/// missing, has no such line or does not stand beside the one before it.
inline Rows commonRows(const QVector<PixelColumn>& columns, int from, int to)
{
    constexpr Rows none{0.0, -1.0};
    if (from < 0 || to >= columns.size()) {
        return none;
    }
    Rows rows{columns.at(from).top, columns.at(from).bottom};
    for (int i = from; i <= to; ++i) {
        const PixelColumn& column = columns.at(i);
        if (!column.merged || column.x != columns.at(from).x + (i - from)) {
            return none;
        }
        rows.top = std::max(rows.top, column.top);
        rows.bottom = std::min(rows.bottom, column.bottom);
    }
    return rows;
}
