#pragma once

#include "growthcheck/rehearsal/assumptions.h"

#include <QString>

namespace GrowthCheck {

/// Takes the temperatures of the start from the last minute that a station's journal tells: what its panel
/// showed of each channel. Gives what is wrong with the file, empty when nothing is.
QString startFromJournal(const QString& fileName, Assumptions& assumptions);

} // namespace GrowthCheck
