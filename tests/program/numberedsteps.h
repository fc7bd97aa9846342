#pragma once

#include "program/programstep.h"

#include <QVector>

/// A step of a program in which every row is another one, to see where rows go.
ProgramStep numberedStep(int row);

/// All of it, a step for every row of the table.
QVector<ProgramStep> numberedSteps();
