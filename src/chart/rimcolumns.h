#pragma once

#include "chart/linestrokes.h"
#include "chart/pixelcolumns.h"

/// Draws the columns that reach over the upper or lower edge of the plot or stand near the device's origin,
/// and marks them as not merged.
///
/// The toolkit's width of a wide line may come out one device pixel off, depending on the line's length: the
/// edge of the line lies on the edge of a pixel, and the rounding errors decide. They do where the line is
/// clipped, and near the origin, where the numbers are small enough to keep them. There segments can not be
/// gathered, each is drawn as it is; but those out of sight are left out, and those between the plot's edges
/// gathered. Thin lines need none of this.
void takeRimColumns(const PointBuffer& buffer, const PlotMapping& mapping, const PenShape& pen,
    QVector<PixelColumn>& columns, LineStrokes& strokes);
