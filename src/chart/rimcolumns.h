#pragma once

#include "chart/linestrokes.h"
#include "chart/pixelcolumns.h"

/// Draws the columns that reach to the upper or lower edge of the plot, and marks them as not merged.
///
/// Where the toolkit clips a wide line, its width may come out one device pixel off, depending on the line's
/// length. So segments that are clipped can not be gathered: each is drawn as it is. Those within the plot
/// are gathered as in any other column, and those out of sight are left out. Thin lines need none of this.
void takeRimColumns(const PointBuffer& buffer, const PlotMapping& mapping, const PenShape& pen,
    QVector<PixelColumn>& columns, LineStrokes& strokes);
