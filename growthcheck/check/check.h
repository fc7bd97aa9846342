#pragma once

#include "growthcheck/check/loadedprogram.h"
#include "growthcheck/layers/layertable.h"
#include "growthcheck/rehearsal/assumptions.h"
#include "growthcheck/rehearsal/timeline.h"

#include <optional>

namespace GrowthCheck {

/// A program and all that can be said of it before it is played.
struct CheckedProgram
{
    LoadedProgram program;
    Assumptions assumptions;
    Timeline timeline;
    Findings findings; ///< the worst first, then in the order of their lines and steps
    std::optional<LayerTable> layers; ///< when the cells' rates are known
};

CheckedProgram checkProgram(
    const LoadedProgram& program, const Assumptions& assumptions, const std::optional<Rates>& rates);

/// Puts the worst first and keeps those of one severity in the order of their steps and lines.
void sortFindings(Findings& findings);

} // namespace GrowthCheck
