#include "chart/repeatedpixels.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

class DotFinder
{
public:
    DotFinder(
        const PointBuffer& points, const PlotMapping& map, const PenShape& linePen, DeviceColumns& lines)
        : buffer(points)
        , mapping(map)
        , pixels(map)
        , pen(linePen)
        , drawn(lines)
        , firstRow(wholePixel(map.top) - margin)
        , lastRow(wholePixel(map.bottom) + margin)
        , seenIn(static_cast<std::size_t>(std::max(0.0, lastRow - firstRow + 1.0)), nullptr)
    {
    }

    void add(const PixelColumn& of)
    {
        column = &of;
        dot = pen.dotColumns(of.x);
        hidden = hiddenRows();
        if (hidden.first <= of.top && of.bottom <= hidden.last) {
            return;
        }
        // Values that are in the hidden rows for certain; none when there are not two such rows.
        constexpr double infinite = std::numeric_limits<double>::infinity();
        inside = hidden.first < hidden.last
            ? ValueRange{mapping.dataY(hidden.last), mapping.dataY(hidden.first + 0.5)}
            : ValueRange{infinite, -infinite};
        openRows = openRowsOf(of);
        PointBuffer::Candidates found = buffer.pairsOutside(of.first + 1, of.last, inside);
        while (found.from <= of.last && openRows > 0.0) {
            addAmong(found);
            found = buffer.pairsOutside(found.end, of.last, inside);
        }
    }

private:
    static constexpr double margin = 16.0; // rows; more than any pen's width

    double row(double degC) const { return wholePixel(pixels.y(degC)); }

    // The widget's rows in which a dot of the column adds nothing to what is drawn beside its line.
    PixelSpan hiddenRows() const
    {
        const PixelSpan line = pen.columns(column->x);
        PixelSpan rows = drawn.sharedRows({dot.first, line.first - 1});
        const PixelSpan right = drawn.sharedRows({line.last + 1, dot.last});
        rows = {std::max(rows.first, right.first), std::min(rows.last, right.last)};
        return rows.isEmpty() ? rows : pen.rowsWithin(rows);
    }

    bool isOutside(double degC) const { return degC < inside.lowest || degC > inside.highest; }

    // Rows in sight that are not hidden.
    double openRowsOf(const PixelColumn& of) const
    {
        const double top = std::max(of.top, firstRow);
        const double bottom = std::min(of.bottom, lastRow);
        const double hiddenCount
            = std::min<double>(bottom, hidden.last) - std::max<double>(top, hidden.first) + 1.0;
        return bottom - top + 1.0 - std::max(0.0, hiddenCount);
    }

    void addAmong(const PointBuffer::Candidates& candidates)
    {
        constexpr double none = std::numeric_limits<double>::quiet_NaN();
        const auto openRow = [&](double degC) { return isOutside(degC) ? row(degC) : none; };
        double before = openRow(buffer.at(candidates.from - 1).degC);
        const TPoint* const points = &buffer.at(candidates.from); // of one block, so they follow each other
        for (int i = 0; i < candidates.end - candidates.from; ++i) {
            const double here = openRow(points[i].degC);
            if (here == before) {
                addDot(here);
            }
            before = here;
        }
    }

    void addDot(double y)
    {
        const bool isHidden = hidden.first <= y && y <= hidden.last;
        if (isHidden || y < firstRow || y > lastRow) {
            return;
        }
        const PixelColumn*& seen = seenIn[static_cast<std::size_t>(y - firstRow)];
        if (seen != column) {
            seen = column;
            openRows -= 1.0;
            drawn.add(dot, pen.rows(y, y));
        }
    }

    const PointBuffer& buffer;
    const PlotMapping& mapping;
    const PixelMap pixels;
    const PenShape& pen;
    DeviceColumns& drawn;
    double firstRow; // the rows in sight
    double lastRow;
    std::vector<const PixelColumn*> seenIn; // for each row in sight, the last column with a dot in it
    const PixelColumn* column = nullptr;
    PixelSpan dot{0, -1};
    PixelSpan hidden{0, -1};
    ValueRange inside{0.0, 0.0}; // values in the hidden rows
    double openRows = 0.0; // in which a dot would show and has not been found yet
};

} // namespace

void addRepeatedPixels(const PointBuffer& buffer, const PlotMapping& mapping,
    const QVector<PixelColumn>& columns, const PenShape& pen, DeviceColumns& drawn)
{
    DotFinder finder(buffer, mapping, pen, drawn);
    for (const PixelColumn& column : columns) {
        const bool isDotItself = column.top == column.bottom;
        if (column.merged && !isDotItself && !pen.columns(column.x).contains(pen.dotColumns(column.x))) {
            finder.add(column);
        }
    }
}
