#include "chart/plotmapping.h"

#include <cmath>

double farPixel(double position)
{
    constexpr double farAway = 1e18;
    // In this order NaN becomes -farAway.
    return std::trunc(std::max(-farAway, std::min(position, farAway)));
}
