#pragma once

#include <QtGlobal>

/// Grid lines, tick steps and units of the chart's axes.
namespace AxisTicks {

/// The multiples first * step, ..., last * step; none when last < first.
struct Ticks
{
    double step = 1.0;
    qint64 first = 0;
    qint64 last = -1;
};

/// base * 10^e with e = log10(span / base) - 0.5 truncated toward zero: one to three steps in a span of
/// up to 3.16 bases, about three to thirty in any other.
double decadeStep(double span, double base);

/// The ticks of a window whose ends are `from` and `to`: the quotients by the step are truncated toward zero,
/// below zero too, and both ends are included. A window in which numbers no longer tell ticks apart, or that
/// is not finite, has none.
Ticks ticks(double from, double to, double step);

/// How the time axis counts.
struct TimeUnit
{
    int index; ///< 0 sec, 1 min, 2 hour, 3 day
    double divisor; ///< seconds in a unit
    double baseStep; ///< seconds
};

/// The unit for a window of `spanSec` seconds.
TimeUnit timeUnit(double spanSec);

struct FirstTick
{
    double first = 0.0;
    double step = 1.0;
};

/// About `n` ticks over a to b (in any order), a step being 1, 5 or 10 times a power of ten. With a = b: a
/// and step 1. With an `n` below 1, or what is not finite, step 1 too.
FirstTick niceStep(double a, double b, int n);

struct OrderedRange
{
    double lower = 0.0;
    double upper = 1.0;
    double step = 1.0;
};

/// A range in ascending order cut into `n` parts; 0 to 1 in one step when it has no extent.
OrderedRange orderedRange(double yMin, double yMax, int n);

} // namespace AxisTicks
