#pragma once

#include "growthcheck/check/finding.h"
#include "growthcheck/rehearsal/timeline.h"

namespace GrowthCheck {

/// What is to be said of the ramps that the steps ask for.
void checkRamps(const Timeline& timeline, Findings& findings);

/// Whether a controller would be told the same for both temperatures, in deg C.
bool looksEqual(double one, double other);

} // namespace GrowthCheck
