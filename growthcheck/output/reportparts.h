#pragma once

#include "growthcheck/check/check.h"
#include "growthcheck/comparison/comparison.h"

#include <QStringList>

namespace GrowthCheck {

/// What stands under a report's title, a line each: how many steps, how long, when it ends.
QStringList summaryLines(const CheckedProgram& checked);
QStringList summaryLines(const Comparison& comparison);

} // namespace GrowthCheck
