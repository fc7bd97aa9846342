#pragma once

#include "chart/devicecolumns.h"
#include "chart/penshape.h"
#include "chart/pixelcolumns.h"

/// Adds the dots that the toolkit draws where one point falls on the pixel of the point before it, as far as
/// they show: on a scaled display such a dot is wider than the upright line of its column (see PenShape).
/// `drawn` holds the upright lines of all merged columns already.
void addRepeatedPixels(const PointBuffer& buffer, const PlotMapping& mapping,
    const QVector<PixelColumn>& columns, const PenShape& pen, DeviceColumns& drawn);
