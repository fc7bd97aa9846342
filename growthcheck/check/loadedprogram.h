#pragma once

#include "growthcheck/check/finding.h"
#include "program/programstep.h"

#include <QVector>

#include <optional>

namespace GrowthCheck {

/// A program file as the station's table takes it, and what is to be said of its lines and texts.
struct LoadedProgram
{
    QString fileName;
    QVector<ProgramStep> steps; ///< as many as the table has rows at the most
    QVector<int> lines; ///< the line that each step stands in, counted from 1
    Findings findings;
};

/// Reads the file as the station does. Nothing for a file that the station would not load.
std::optional<LoadedProgram> loadProgram(const QString& fileName);

} // namespace GrowthCheck
