#include "chart/axisticks.h"

#include <cmath>
#include <utility>

namespace AxisTicks {

namespace {

// value * 10^exponent. No negative power of ten is a double, and some C libraries miss the nearest one; the
// positive powers up to 10^22 are exact.
double timesPowerOfTen(double value, double exponent)
{
    const double power = std::pow(10.0, std::abs(exponent));
    return exponent < 0.0 ? value / power : value * power;
}

} // namespace

double decadeStep(double span, double base)
{
    return timesPowerOfTen(base, std::trunc(std::log10(span / base) - 0.5));
}

Ticks ticks(double from, double to, double step)
{
    constexpr double mostTicks = 1000.0; // more than any plot has room for
    constexpr double tellsApart = 1e15; // from here on a double does not tell neighbours apart for sure

    Ticks found;
    found.step = step;
    const double first = std::trunc(from / step);
    const double last = std::trunc(to / step);
    const bool usable = std::abs(first) < tellsApart && std::abs(last) < tellsApart
        && last - first < mostTicks && step > 0.0;
    if (usable) {
        found.first = static_cast<qint64>(first);
        found.last = static_cast<qint64>(last);
    }
    return found;
}

TimeUnit timeUnit(double spanSec)
{
    if (spanSec < 300.0) {
        return {0, 1.0, 1.0};
    }
    if (spanSec < 7200.0) {
        return {1, 60.0, 60.0};
    }
    if (spanSec < 259200.0) {
        return {2, 3600.0, 1800.0};
    }
    return {3, 86400.0, 43200.0};
}

FirstTick niceStep(double a, double b, int n)
{
    if (a > b) {
        std::swap(a, b);
    }
    double mantissa = (b - a) / n;
    if (!std::isfinite(mantissa) || mantissa <= 0.0) {
        return {a, 1.0};
    }
    int exponent = 0;
    while (mantissa >= 10.0) {
        mantissa /= 10.0;
        ++exponent;
    }
    while (mantissa < 1.0) {
        mantissa *= 10.0;
        --exponent;
    }
    const double nice = mantissa <= 2.5 ? 1.0 : (mantissa <= 7.5 ? 5.0 : 10.0);
    const double step = timesPowerOfTen(nice, exponent);
    return {std::trunc(a / step + 1.0) * step, step};
}

OrderedRange orderedRange(double yMin, double yMax, int n)
{
    if (yMin == yMax) {
        return {};
    }
    if (yMin > yMax) {
        std::swap(yMin, yMax);
    }
    return {yMin, yMax, (yMax - yMin) / n};
}

} // namespace AxisTicks
