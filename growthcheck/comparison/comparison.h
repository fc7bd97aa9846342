#pragma once

#include "base/channels.h"
#include "growthcheck/check/finding.h"
#include "growthcheck/comparison/recordedrun.h"
#include "growthcheck/rehearsal/timeline.h"

#include <array>
#include <optional>

namespace GrowthCheck {

/// A set point that was planned, by the temperature that its ramp began with, or sent, or both. Times are in
/// ms since Run was pressed.
struct ComparedSetPoint
{
    int channel = 0;
    qint64 dueMs = -1; ///< -1 for one that nobody planned
    double plannedDegC = 0.0;
    qint64 sentMs = -1; ///< -1 for one that never left
    double sentDegC = 0.0;
};

/// How far a channel's measured temperature was from its set point, by the minutes of a step. In deg C.
struct Difference
{
    int minutes = 0;
    double sumDegC = 0.0; ///< of the amounts
    double largestDegC = 0.0; ///< the largest amount

    void add(double degC);
    double meanDegC() const { return minutes == 0 ? 0.0 : sumDegC / minutes; }
};

/// A step as it was played. Times are in ms since Run was pressed.
struct ComparedStep
{
    enum class Command {
        Missing, ///< never sent: overtaken by what came next
        Sent,
        NotConnected, ///< there was no link to send it by
    };

    int row = 0;
    int pass = 1; ///< of its group, counted from 1
    int times = 1;
    QString group;
    StepPlan plan; ///< what its row says
    qint64 startMs = 0;
    qint64 endMs = 0;
    qint64 lateMs = 0; ///< after the time of the step before was over
    Command command = Command::Missing;
    qint64 commandMs = -1; ///< when the shutters were commanded
    qint64 waitedMs = 0; ///< how long the command waited for the bus
    qint64 pausedMs = 0; ///< by the operator; at a hold until Resume
    int refusedRamps = 0;
    QVector<ComparedSetPoint> setPoints; ///< in the order of their times
    std::array<Difference, Channels::count> differences; ///< by channel

    bool isHold() const { return plan.kind == StepPlan::Kind::Hold; }
    /// Of the channel that was off the most.
    int worstChannel() const;
};

/// What the panel showed of the channels at a minute; nothing where it showed none.
struct MeasuredMinute
{
    qint64 ms = 0;
    std::array<std::optional<double>, Channels::count> degC;
    std::array<std::optional<double>, Channels::count> setPointDegC;
};

/// Shutters that were set, by the program or by hand: they stay so until the next command.
struct ShutterChange
{
    qint64 ms = 0;
    QVector<bool> open; ///< one each
};

/// A program and a run of it.
struct Comparison
{
    QString programName;
    QString journalName;
    int runs = 0; ///< in the journal
    RecordedRun run;
    Timeline plan; ///< of the program's file, from the temperatures that the panel showed
    QVector<ComparedStep> steps;
    QVector<ShutterChange> shutters; ///< in the order of their times
    QVector<MeasuredMinute> minutes;
    qint64 endMs = 0;
    Findings findings; ///< the worst first

    /// Whether shutters or set points were not as the program has them.
    bool differs() const { return worst(findings) == Severity::Error; }
};

} // namespace GrowthCheck
