#pragma once

#include <QString>

#include <array>

/// One step of a growth program, as a value. A default one is an unused row of the table: it sets nothing
/// and, with its time of 0, ends the program.
struct ProgramStep
{
    static constexpr int channelCount = 9;
    static constexpr int shutterCount = 7;

    ProgramStep() { setPoints.fill(QStringLiteral("0")); }

    /// Set points in deg C of the seven cells and the two substrates, as the texts the operator entered. A
    /// text that is no number counts as 0, and a channel at 0 or below is left alone.
    std::array<QString, channelCount> setPoints;
    std::array<bool, shutterCount> shutters{}; ///< true = open
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
