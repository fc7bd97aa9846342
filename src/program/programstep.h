#pragma once

#include "base/channels.h"

#include <QString>

#include <array>

/// The columns of the program table. A line of a program file has the same fields in the same order, with the
/// shutters between the set points and the time.
enum ProgramColumn {
    StepColumn, ///< the step's number
    FirstCellColumn, ///< a cell's set point, and its shutter beside it
    FirstSubstrateColumn = FirstCellColumn + Channels::shutterCount, ///< a substrate's set point
    TimeColumn = FirstSubstrateColumn + Channels::substrateCount,
    GroupColumn,
    TimesColumn,
    ProgramColumns ///< how many there are
};

/// One step of a growth program, as a value. A default one is an unused row of the table: it sets nothing
/// and, with its time of 0, ends the program.
struct ProgramStep
{
    ProgramStep() { setPoints.fill(QStringLiteral("0")); }

    /// Set points in deg C of the seven cells and the two substrates, as the texts the operator entered. A
    /// text that is no number counts as 0, and a channel at 0 or below is left alone.
    std::array<QString, Channels::count> setPoints;
    std::array<bool, Channels::shutterCount> shutters{}; ///< true = open
    double timeSec = 0.0; ///< above 0 the step's length, 0 the program's end, below 0 a hold point
    QString group; ///< neighbouring steps of equal group texts form a block
    int times = 1; ///< how often a block is played, as its first step says; below 1 it is played once
};

inline bool operator==(const ProgramStep& a, const ProgramStep& b)
{
    return a.setPoints == b.setPoints && a.shutters == b.shutters && a.timeSec == b.timeSec
        && a.group == b.group && a.times == b.times;
}

inline bool operator!=(const ProgramStep& a, const ProgramStep& b)
{
    return !(a == b);
}
