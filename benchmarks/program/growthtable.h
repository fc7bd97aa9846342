#pragma once

#include "program/programstep.h"

#include <QVector>

/// A growth program that fills the table: neighbouring steps differ in every text, and, as in a growth where
/// one source follows the other under arsenic, in two shutters. `allShutters` has all of them change instead.
QVector<ProgramStep> fullProgram(bool allShutters = false);
