#pragma once

#include "growthcheck/check/check.h"
#include "growthcheck/comparison/comparison.h"

#include <QByteArray>

/// The tables of the page, as markup.
namespace GrowthCheck {

QByteArray findingsTable(const Findings& findings);
QByteArray timelineTable(const CheckedProgram& checked);
QByteArray layersTable(const LayerTable& layers);
QByteArray comparedTable(const Comparison& comparison);

} // namespace GrowthCheck
