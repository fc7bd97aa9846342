#pragma once

#include <QtGlobal>

/// The arithmetic of a ramp: its rate, what is refused, and its set points in one-minute steps.
namespace Ramp {

/// The time between two set points.
constexpr qint64 stepMs = 60000;

/// Why a ramp does not start.
enum class Refusal { None, Duration, RiseTooFast };

struct Plan
{
    Refusal refusal = Refusal::None;
    double rate = 0.0; ///< deg C per minute, negative when falling; 0 when refused for the duration
};

/// Plans a ramp from `currentDegC` to `targetDegC` in `durationMin` minutes. A duration that is not above 0
/// is refused, and so is a rise faster than |`riseLimit`| deg C per minute; a fall may be of any speed.
Plan plan(double currentDegC, double targetDegC, double durationMin, double riseLimit);

/// The set point to send when `setPointDegC` is due: never beyond the target. A rate of 0 has no direction
/// and is not limited.
double limited(double setPointDegC, double targetDegC, double rate);

/// Whether a ramp is over once `setPointDegC` has been sent. Never, with a rate of 0.
bool reaches(double setPointDegC, double targetDegC, double rate);

} // namespace Ramp
