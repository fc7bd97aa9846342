#pragma once

#include <QString>

/// The arithmetic of a ramp: its rate, what is refused, and its set points in one-minute steps.
namespace Ramp {

/// The time between two set points.
constexpr qint64 stepMs = 60000;

/// Why a ramp does not start.
enum class Refusal { None, Duration, RiseTooFast };

struct Plan
{
    Refusal refusal = Refusal::None;
    double currentDegC = 0.0; ///< where it begins
    double targetDegC = 0.0;
    double durationMin = 0.0;
    double rate = 0.0; ///< deg C per minute, negative when falling
};

/// Plans a ramp from `currentDegC` to `targetDegC` in `durationMin` minutes. A duration that is not above 0
/// is refused, and so is one so short that rate or set point would be no finite number; and a rise faster
/// than |`riseLimit`| deg C per minute. A fall may be of any speed.
Plan plan(double currentDegC, double targetDegC, double durationMin, double riseLimit);

/// The same from the texts of the cell panel: the temperature it shows and the entries. One that is not known
/// ("----.-") counts as 0, and so does what is no number.
Plan planOf(
    const QString& currentDegC, const QString& targetDegC, const QString& durationMin, double riseLimit);

/// A cell's ramp on its way. Times are in ms since the epoch.
struct Run
{
    bool cellRunning = false;
    qint64 rampStartMs = 0;
    qint64 rampNextMs = 0; ///< a set point is due after it
    double rampRate = 0.0; ///< deg C per minute, negative when falling
    double rampSetPoint = 0.0; ///< deg C, the next one to send

    /// Starts as planned. The first set point, one minute's rise or fall away from where the ramp begins, is
    /// due at once: the ramp runs a minute ahead of a straight line. The others follow on a grid of minutes
    /// counted from `nowMs`; those that are late are not left out.
    void start(const Plan& plan, qint64 nowMs);

    bool isDue(qint64 nowMs) const { return cellRunning && nowMs > rampNextMs; }

    /// Takes the step that is due and gives the set point to send, never beyond `targetDegC`, which may have
    /// changed since the last step. Having sent the target the ramp is over; with a rate of 0, which has no
    /// direction, it never is.
    double step(double targetDegC);
};

} // namespace Ramp
