#pragma once

#include "base/channels.h"

#include <QString>

#include <array>

namespace GrowthCheck {

/// How fast each source cell makes the crystal grow while its shutter is open, in nm/s; 0 for a cell that
/// does not.
struct Rates
{
    std::array<double, Channels::shutterCount> nmPerSec{};
};

/// Reads a file of lines "Ga 0.28": a cell's name and its rate, not below 0, each cell once. "#" begins a
/// remark. Gives what is wrong with it, with the number of the line, empty when nothing is.
QString readRates(const QString& fileName, Rates& rates);

} // namespace GrowthCheck
