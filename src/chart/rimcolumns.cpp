#include "chart/rimcolumns.h"

#include "chart/columnrows.h"

#include <cmath>
#include <limits>

namespace {

class RimColumn
{
public:
    RimColumn(const PointBuffer& points, const PlotMapping& map, const PenShape& pen, LineStrokes& drawn)
        : buffer(points)
        , pixels(map)
        , sureX((nearOrigin - pen.originX) / pen.scale)
        , sureRows{std::max(std::trunc(map.top) + pen.width, (nearOrigin - pen.originY) / pen.scale),
              std::trunc(map.bottom) - pen.width}
        , visible{std::trunc(map.top) - 8.0 * pen.width, std::trunc(map.bottom) + 8.0 * pen.width}
        , strokes(drawn)
    {
    }

    // Whether its segments can be gathered as they are.
    bool isSure(const PixelColumn& column) const
    {
        return column.x >= sureX && sureRows.contains(column.top, column.bottom);
    }

    void draw(const PixelColumn& column)
    {
        x = column.x;
        inside = x >= sureX ? sureRows : Rows{0.0, -1.0};
        before = column.entry;
        run = Rows{before, before};
        runLength = inside.contains(before, before) ? 1 : 0;
        lastDot = std::numeric_limits<double>::quiet_NaN();
        int point = column.first + 1;
        while (point <= column.last) {
            const PointBuffer::Block block = buffer.blockFrom(point, column.last);
            drawBlock(point, block);
            point = block.end;
        }
        finishRun();
    }

private:
    static constexpr double nearOrigin = 64.0; // device pixels

    // The segments that lead to the points of a block, `from` on.
    void drawBlock(int from, const PointBuffer::Block& block)
    {
        const int end = block.end;
        const Rows rows{row(block.range.highest), row(block.range.lowest)};
        if (runLength > 0 && inside.contains(rows.top, rows.bottom)) {
            extendRun(rows, end - from);
            before = row(buffer.at(end - 1).degC);
            return;
        }
        const bool isAbove = std::max(before, rows.bottom) < visible.top;
        const bool isBelow = std::min(before, rows.top) > visible.bottom;
        if (isAbove || isBelow) {
            before = row(buffer.at(end - 1).degC);
            return;
        }
        for (int i = from; i < end; ++i) {
            drawSegmentTo(row(buffer.at(i).degC));
        }
    }

    void drawSegmentTo(double here)
    {
        const bool isHereInside = inside.contains(here, here);
        if (runLength > 0 && isHereInside) {
            extendRun({here, here}, 1);
            before = here;
            return;
        }
        finishRun();
        const bool isDot = here == before;
        if (!isDot || here != lastDot) {
            addLine(before, here);
        }
        if (isDot) {
            lastDot = here;
        }
        run = Rows{here, here};
        runLength = isHereInside ? 1 : 0;
        before = here;
    }

    void extendRun(const Rows& rows, int points)
    {
        run.top = std::min(run.top, rows.top);
        run.bottom = std::max(run.bottom, rows.bottom);
        runLength += points;
    }

    void finishRun()
    {
        if (runLength > 1) {
            addLine(run.top, run.bottom);
        }
        runLength = 0;
    }

    void addLine(double from, double to)
    {
        QLine line;
        if (segmentLine(x, from, x, to, line)) {
            strokes.lines.append(line);
        }
    }

    double row(double degC) const { return wholePixel(pixels.y(degC)); }

    const PointBuffer& buffer;
    const PixelMap pixels;
    double sureX; // from this column on and between these rows lines can be gathered
    Rows sureRows;
    Rows visible; // beyond these rows nothing is seen
    LineStrokes& strokes;
    double x = 0.0;
    Rows inside{0.0, -1.0}; // the sure rows of this column
    double before = 0.0; // row of the last point
    Rows run{0.0, -1.0}; // the rows of the points inside that follow each other
    int runLength = 0;
    double lastDot = 0.0; // row of the last point that fell on the pixel before it
};

} // namespace

void takeRimColumns(const PointBuffer& buffer, const PlotMapping& mapping, const PenShape& pen,
    QVector<PixelColumn>& columns, LineStrokes& strokes)
{
    if (pen.isThin()) {
        return;
    }
    RimColumn rim(buffer, mapping, pen, strokes);
    for (PixelColumn& column : columns) {
        if (column.hasSegment() && !rim.isSure(column)) {
            rim.draw(column);
            column.merged = false;
        }
    }
}
