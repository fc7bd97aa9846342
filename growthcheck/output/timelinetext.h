#pragma once

#include "growthcheck/output/output.h"

namespace GrowthCheck {

/// Every step's start with what it sets, folded passes in a line.
void writeTimeline(const CheckedProgram& checked, const Sink& sink);

/// The layer table.
void writeLayers(const LayerTable& layers, const Sink& sink);

} // namespace GrowthCheck
