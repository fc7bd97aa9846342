#include "chart/repeatedpixels.h"

#include "chart/columnrows.h"

#include <cmath>
#include <vector>

namespace {

class DotFinder
{
public:
    DotFinder(const PointBuffer& points, const PlotMapping& map, const QVector<PixelColumn>& all)
        : buffer(points)
        , mapping(map)
        , pixels(map)
        , columns(all)
        , visible{std::trunc(map.top) - margin, std::trunc(map.bottom) + margin}
    {
        seenIn.assign(static_cast<std::size_t>(std::max(0.0, visible.count())), -1);
    }

    // Appends the dots of column `index` outside of the rows `hidden`.
    void find(int index, const Rows& hidden, QVector<QLine>& dots)
    {
        const PixelColumn& column = columns.at(index);
        // Values that are in the hidden rows for certain.
        const ValueRange hiddenValues{mapping.dataY(hidden.bottom), mapping.dataY(hidden.top + 0.5)};
        int point = column.first;
        while (point < column.last) {
            const PointBuffer::Block block = buffer.blockFrom(point, column.last);
            const bool isHidden = block.range.lowest >= hiddenValues.lowest
                && block.range.highest <= hiddenValues.highest && hidden.count() > 1.0;
            if (!isHidden) {
                findInBlock(index, point, block, hidden, dots);
            }
            point = block.end;
        }
    }

private:
    static constexpr int margin = 16;

    double row(double degC) const { return wholePixel(pixels.y(degC)); }

    void findInBlock(
        int index, int point, const PointBuffer::Block& block, const Rows& hidden, QVector<QLine>& dots)
    {
        const double top = row(block.range.highest);
        const double bottom = row(block.range.lowest);
        if (top == bottom && block.end - point > 1) {
            mark(index, top, hidden, dots);
            return;
        }
        const TPoint* points = &buffer.at(point);
        double before = row(points[0].degC);
        for (int i = 1; i < block.end - point; ++i) {
            const double here = row(points[i].degC);
            if (here == before) {
                mark(index, here, hidden, dots);
            }
            before = here;
        }
        // On to the next block's first point; for the other blocks that pair adds no row.
        if (block.end <= columns.at(index).last && row(buffer.at(block.end).degC) == before) {
            mark(index, before, hidden, dots);
        }
    }

    void mark(int index, double y, const Rows& hidden, QVector<QLine>& dots)
    {
        if (!visible.contains(y, y) || hidden.contains(y, y)) {
            return;
        }
        int& seen = seenIn[static_cast<std::size_t>(y - visible.top)];
        if (seen == index) {
            return;
        }
        seen = index;
        const int x = pixelOf(columns.at(index).x);
        const int row = static_cast<int>(y);
        dots.append(QLine(x, row, x, row));
    }

    const PointBuffer& buffer;
    const PlotMapping& mapping;
    const PixelMap pixels;
    const QVector<PixelColumn>& columns;
    Rows visible;
    std::vector<int> seenIn; // for each visible row, the last column with a dot in it
};

} // namespace

void addRepeatedPixels(const PointBuffer& buffer, const PlotMapping& mapping,
    const QVector<PixelColumn>& columns, const PenShape& pen, LineStrokes& strokes)
{
    if (pen.scale <= 1.0) {
        return;
    }
    // How many columns to either side a dot reaches beyond the line.
    const int reach = static_cast<int>(std::ceil(pen.width * (pen.scale - 1.0) / 2.0));
    DotFinder finder(buffer, mapping, columns);
    for (int i = 0; i < columns.size(); ++i) {
        const PixelColumn& column = columns.at(i);
        const bool isDotItself = column.merged && column.top == column.bottom;
        if (!column.hasSegment() || isDotItself) {
            continue;
        }
        Rows hidden = commonRows(columns, i - reach, i + reach);
        hidden.top += 1.0;
        hidden.bottom -= 1.0;
        if (!hidden.contains(column.top, column.bottom)) {
            finder.find(i, hidden, strokes.lines);
        }
    }
}
