#pragma once

#include "chart/lines/pointbuffer.h"
#include "chart/plotmapping.h"

class QPainter;
class QPen;

/// Draws one curve: the segments of the points from the last one at or before the mapping's left end to the
/// first one after its right end. The pen is solid, opaque and one or three pixels wide. The painter clips to
/// the plot rectangle, a pixel around it included, and may have any transform and paint on anything.
void paintCurve(QPainter& painter, const PointBuffer& points, const PlotMapping& mapping, const QPen& pen);
