#pragma once

#include "growthcheck/rehearsal/assumptions.h"
#include "growthcheck/rehearsal/timeline.h"

#include <QStringList>

#include <array>

namespace GrowthCheck {

/// The cells of a program that is rehearsed: what the panel shows of them, and their ramps. Times are in ms
/// since Run was pressed.
class RehearsedCells
{
public:
    RehearsedCells(Timeline& target, const Assumptions& assumptions);

    /// The ramp of the timeline's last step that begins at `nowMs`, in the place of one that runs.
    void begin(const StepRamp& ramp, qint64 nowMs);

    /// The set points that were due before `untilMs`, where the timeline's last step ends; the next one
    /// begins ramps of its own on `channels`. At most `limit` of them.
    QVector<PlannedSetPoint> advance(qint64 untilMs, const QVector<int>& channels, int limit);

    /// The program is over: what the ramps that still run will send, at most `limit` each.
    void finish(int limit);

    /// How things stand at `nowMs`, as a text: passes that begin with the same text are alike. Ramps without
    /// a rate that began before `passStartMs` may stand elsewhere in their minute.
    QString standing(qint64 nowMs, qint64 passStartMs) const;

    /// Passes are left out from `nowMs` on, which take `byMs`, each like the one that began at `passStartMs`.
    /// Gives the set points that ramps without a rate begin that time with.
    QVector<PlannedSetPoint> leaveOut(qint64 nowMs, qint64 byMs, qint64 passStartMs);

private:
    struct Cell
    {
        Assumptions::Start::Kind kind = Assumptions::Start::Kind::NotTold;
        QString shown; // on the panel
        Ramp::Run ramp;
        QString target;
        qint64 lastDueMs = 0;
        bool hasSent = false;
        bool isSure = true; // whether the last set point that was due was sent
        int step = -1; // where its ramp stands in the timeline
        int index = -1;
    };

    static bool isLevelSince(const Cell& cell, qint64 ms);
    PlannedRamp& planned(const Cell& cell) { return timeline.steps[cell.step].ramps[cell.index]; }
    PlannedRamp::From fromOf(const Cell& cell, qint64 nowMs) const;
    PlannedSetPoint send(int channel, qint64 untilMs, bool isReplaced);

    Timeline& timeline;
    const qint64 roundMs; // of the polling
    std::array<Cell, Channels::count> cells;
};

} // namespace GrowthCheck
