#pragma once

#include "growthcheck/check/finding.h"
#include "program/programstep.h"

#include <QVector>

namespace GrowthCheck {

/// What is to be said of the table's rows as they stand: groups and repeats, rows that are never reached,
/// holds, and steps shorter than a polling round of `roundMs`.
Findings checkRows(const QVector<ProgramStep>& steps, qint64 roundMs);

} // namespace GrowthCheck
