#pragma once

#include "growthcheck/check/check.h"
#include "growthcheck/comparison/comparison.h"

namespace GrowthCheck {

/// Holds a run against the program of a file.
Comparison compare(const CheckedProgram& checked, const RecordedRun& run);

/// Starts `assumptions` from what the panel showed when the run began, where nobody told otherwise.
Assumptions assumptionsOf(const Assumptions& told, const RecordedRun& run);

} // namespace GrowthCheck
