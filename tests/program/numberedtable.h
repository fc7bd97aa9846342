#pragma once

#include "program/programwindow.h"

/// A table in which every row is another one, to see where rows go.
namespace NumberedTable {

constexpr int lastRow = 199;

/// Row `k` (0 to 199) of it.
ProgramStep row(int k);

/// All of it.
QVector<ProgramStep> rows();

/// Enters it into the window's table.
void fill(ProgramWindow& table);

/// The first row of the window's table that differs from `expected` or whose number is not its own; -1 when
/// none does.
int difference(ProgramWindow& table, const QVector<ProgramStep>& expected);

} // namespace NumberedTable
