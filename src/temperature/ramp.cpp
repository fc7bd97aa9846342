#include "temperature/ramp.h"

#include <algorithm>
#include <cmath>

namespace Ramp {

Plan plan(double currentDegC, double targetDegC, double durationMin, double riseLimit)
{
    Plan result;
    if (durationMin <= 0.0) {
        result.refusal = Refusal::Duration;
        return result;
    }
    result.rate = (targetDegC - currentDegC) / durationMin;
    if (result.rate > 0.0 && std::abs(result.rate) > std::abs(riseLimit)) {
        result.refusal = Refusal::RiseTooFast;
    }
    return result;
}

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

} // namespace Ramp
