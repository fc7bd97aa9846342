#pragma once

#include "growthcheck/check/check.h"
#include "growthcheck/comparison/comparison.h"

#include <QByteArray>

namespace GrowthCheck {

/// A page with findings, picture and tables, in the language of the user: one file that loads nothing.
QByteArray pageOf(const CheckedProgram& checked);
QByteArray pageOf(const CheckedProgram& checked, const Comparison& comparison);

/// The language of the texts, as HTML names it: "en" or "ja".
QString pageLanguage();

} // namespace GrowthCheck
