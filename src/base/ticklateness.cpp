#include "base/ticklateness.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double longestMean = 1.1; // intervals
constexpr double latestFineMs = 100.0;

} // namespace

TickLateness::TickLateness(double intervalMs)
    : interval(intervalMs)
    , histogram({{1.0, 0}, {2.0, 0}, {5.0, 0}, {10.0, 0}, {20.0, 0}, {50.0, 0}, {100.0, 0},
          {std::numeric_limits<double>::infinity(), 0}})
{
}

void TickLateness::tick(double nowMs)
{
    if (!hasBegun) {
        hasBegun = true;
        first = last = nowMs;
        return;
    }
    const double lateMs = nowMs - last - interval;
    last = nowMs;
    latest = std::max(latest, lateMs);
    const auto found = std::find_if(
        histogram.begin(), histogram.end(), [lateMs](const Class& one) { return lateMs <= one.upToMs; });
    ++found->ticks;
}

int TickLateness::count() const
{
    int ticks = 0;
    for (const Class& one : histogram) {
        ticks += one.ticks;
    }
    return ticks;
}

double TickLateness::meanIntervalMs() const
{
    return count() == 0 ? 0.0 : (last - first) / count();
}

bool TickLateness::isFine() const
{
    return count() > 0 && meanIntervalMs() <= longestMean * interval && latest <= latestFineMs;
}
