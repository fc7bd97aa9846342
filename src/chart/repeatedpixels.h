#pragma once

#include "chart/linestrokes.h"
#include "chart/pixelcolumns.h"

/// Adds the dots that the toolkit draws where one point falls on the pixel of the point before it.
///
/// On a scaled display such a dot is wider than a line (the toolkit applies the scale twice), so it shows
/// beside the vertical line of its column. Dots in rows that the neighbouring columns cover as well are left
/// out. On an unscaled display a dot never shows beside its line and nothing is added.
void addRepeatedPixels(const PointBuffer& buffer, const PlotMapping& mapping,
    const QVector<PixelColumn>& columns, const PenShape& pen, LineStrokes& strokes);
