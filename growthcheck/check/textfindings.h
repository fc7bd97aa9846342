#pragma once

#include "growthcheck/check/finding.h"
#include "program/programfile.h"

namespace GrowthCheck {

/// What is to be said of the texts of a line that says step `step` (counted from 1): those that do not
/// convert and so count as 0, and those that mean something else than they seem to.
/// Of a step behind the program's end, which is never played, all are notes.
void checkTexts(const ProgramFile::Line& line, int step, bool isBehindEnd, Findings& findings);

} // namespace GrowthCheck
