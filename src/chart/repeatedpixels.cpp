#include "chart/repeatedpixels.h"

#include "chart/columnrows.h"

#include <cmath>

namespace {

class DotFinder
{
public:
    DotFinder(const PointBuffer& points, const PlotMapping& map, const QVector<PixelColumn>& all)
        : buffer(points)
        , pixels(map)
        , columns(all)
        , visible{std::trunc(map.top) - margin, std::trunc(map.bottom) + margin}
    {
        seenIn.fill(-1, std::max(0, static_cast<int>(visible.count())));
    }

    // Appends the dots of column `index` outside of the rows `hidden`.
    void find(int index, const Rows& hidden, QVector<QLine>& dots)
    {
        const PixelColumn& column = columns.at(index);
        int point = column.first;
        while (point < column.last) {
            const int end = std::min(buffer.blockEnd(point), column.last + 1);
            const ValueRange range = buffer.range(point, end - 1);
            const double top = row(range.highest);
            const double bottom = row(range.lowest);
            if (top == bottom && end - point > 1) {
                mark(index, top, hidden, dots);
            } else if (!hidden.contains(top, bottom)) {
                scan(index, point, end, hidden, dots);
            }
            // From the block's last point to the next one.
            if (end <= column.last) {
                scan(index, end - 1, end + 1, hidden, dots);
            }
            point = end;
        }
    }

private:
    static constexpr int margin = 16;

    double row(double degC) const { return wholePixel(pixels.y(degC)); }

    void scan(int index, int point, int end, const Rows& hidden, QVector<QLine>& dots)
    {
        double before = row(buffer.at(point).degC);
        for (int i = point + 1; i < end; ++i) {
            const double here = row(buffer.at(i).degC);
            if (here == before) {
                mark(index, here, hidden, dots);
            }
            before = here;
        }
    }

    void mark(int index, double y, const Rows& hidden, QVector<QLine>& dots)
    {
        if (!visible.contains(y, y) || hidden.contains(y, y)) {
            return;
        }
        int& seen = seenIn[static_cast<int>(y - visible.top)];
        if (seen == index) {
            return;
        }
        seen = index;
        const int x = pixelOf(columns.at(index).x);
        const int row = static_cast<int>(y);
        dots.append(QLine(x, row, x, row));
    }

    const PointBuffer& buffer;
    const PixelMap pixels;
    const QVector<PixelColumn>& columns;
    Rows visible;
    QVector<int> seenIn; // for each visible row, the last column with a dot in it
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
