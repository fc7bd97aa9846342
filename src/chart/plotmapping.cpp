#include "chart/plotmapping.h"

#include <algorithm>
#include <cmath>

double wholePixel(double position)
{
    constexpr double farAway = 1e18;
    // In this order NaN becomes -farAway.
    return std::trunc(std::max(-farAway, std::min(position, farAway)));
}

int pixelWithin(double wholePosition, int limit)
{
    return static_cast<int>(std::clamp(wholePosition, -1.0 * limit, 1.0 * limit));
}

int pixelOf(double position)
{
    return pixelWithin(wholePixel(position), 1 << 26);
}
