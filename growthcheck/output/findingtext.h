#pragma once

#include "growthcheck/check/finding.h"

namespace GrowthCheck {

/// "warning" in the language of the user.
QString severityName(Severity severity);

/// Where it was found: "step 3, pass 2, Ga"; the line only where there is no step.
QString placeOf(const Finding& finding);

/// All of them for a terminal, under their heading.
QString findingsText(const Findings& findings);

} // namespace GrowthCheck
