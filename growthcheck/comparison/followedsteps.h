#pragma once

#include "growthcheck/comparison/comparison.h"
#include "program/blockcursor.h"

namespace GrowthCheck {

/// The steps of a run, followed through the journal: whether the walk through the table leads to them, and
/// what became of their shutter commands.
class FollowedSteps
{
public:
    explicit FollowedSteps(Comparison& target);

    void takeEdit(const RecordedEvent& event);
    /// A step begins: it becomes the comparison's last one.
    void takeStep(const RecordedEvent& event);
    void takeShutters(const RecordedEvent& event);
    void takePause(const RecordedEvent& event);
    void takeResume(const RecordedEvent& event);

    /// The step that plays is over; nothing when there is none.
    void endStep(qint64 ms);

private:
    ComparedStep& step() { return comparison.steps.last(); }
    void checkWalk(const ComparedStep& begun);
    void checkLateness();
    void tell(const Kind& kind, const QString& text);

    Comparison& comparison;
    QVector<ProgramStep> table;
    BlockCursor walk;
    bool isOnWalk = false; ///< a step has begun, and `walk` is at it
    qint64 pausedSinceMs = -1;
    bool wasPaused = false; ///< since the step before began
};

} // namespace GrowthCheck
