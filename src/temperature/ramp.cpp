#include "temperature/ramp.h"

#include "base/number.h"

#include <algorithm>
#include <cmath>

namespace Ramp {

namespace {

double limited(double setPointDegC, double targetDegC, double rate)
{
    if (rate > 0.0) {
        return std::min(setPointDegC, targetDegC);
    }
    if (rate < 0.0) {
        return std::max(setPointDegC, targetDegC);
    }
    return setPointDegC;
}

bool reaches(double setPointDegC, double targetDegC, double rate)
{
    return (rate > 0.0 && setPointDegC >= targetDegC) || (rate < 0.0 && targetDegC >= setPointDegC);
}

} // namespace

Plan plan(double currentDegC, double targetDegC, double durationMin, double riseLimit)
{
    Plan result;
    result.currentDegC = currentDegC;
    result.targetDegC = targetDegC;
    result.durationMin = durationMin;
    // Asked this way round, so that a duration that is no number is refused too.
    if (!(durationMin > 0.0)) {
        result.refusal = Refusal::Duration;
        return result;
    }
    result.rate = (targetDegC - currentDegC) / durationMin;
    if (result.rate > 0.0 && std::abs(result.rate) > std::abs(riseLimit)) {
        result.refusal = Refusal::RiseTooFast;
    } else if (!std::isfinite(currentDegC + result.rate)) {
        result.refusal = Refusal::Duration;
    }
    return result;
}

Plan planOf(
    const QString& currentDegC, const QString& targetDegC, const QString& durationMin, double riseLimit)
{
    return plan(readNumber(currentDegC).value_or(0.0), readNumber(targetDegC).value_or(0.0),
        readNumber(durationMin).value_or(0.0), riseLimit);
}

void Run::start(const Plan& plan, qint64 nowMs)
{
    cellRunning = true;
    rampStartMs = nowMs;
    rampNextMs = nowMs;
    rampRate = plan.rate;
    rampSetPoint = plan.currentDegC + plan.rate;
}

double Run::step(double targetDegC)
{
    const double setPoint = limited(rampSetPoint, targetDegC, rampRate);
    if (reaches(setPoint, targetDegC, rampRate)) {
        cellRunning = false;
        return setPoint;
    }
    rampSetPoint += rampRate;
    rampNextMs += stepMs;
    return setPoint;
}

} // namespace Ramp
