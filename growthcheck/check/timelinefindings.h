#pragma once

#include "growthcheck/check/finding.h"
#include "growthcheck/rehearsal/assumptions.h"
#include "growthcheck/rehearsal/timeline.h"

namespace GrowthCheck {

/// What is to be said of a program as it will be played: its ramps, its length, and how it leaves the
/// chamber.
Findings checkTimeline(const Timeline& timeline, const Assumptions& assumptions);

} // namespace GrowthCheck
