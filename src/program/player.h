#pragma once

#include "program/blockcursor.h"
#include "program/programstep.h"

#include <QVector>

#include <optional>

/// A ramp that a step starts.
struct StepRamp
{
    int channel;
    QString targetDegC; ///< the row's text, unchanged
    QString minutes; ///< the step's length, up to six significant digits
};

/// What a row of the program means when it is played.
struct StepPlan
{
    enum class Kind {
        End, ///< the program is over
        Hold, ///< shutters only, then it waits for the operator
        Step, ///< ramps and shutters, for timeSec
    };

    Kind kind = Kind::End;
    double timeSec = 0.0;
    QVector<StepRamp> ramps; ///< in the order of their channels
    QVector<bool> shutters; ///< one each, true = open
};

/// What `step` means. A time of 0 is the end, a negative one a hold. Ramps are started for the set points
/// above 0, and last exactly as long as the step.
StepPlan planOf(const ProgramStep& step);

/// What a tick of the player did; a step may end and the next one begin in one tick.
struct PlayerTick
{
    std::optional<BlockCursor::Move> ended; ///< the step that played ended, and the walk went on so
    std::optional<StepPlan> begun; ///< a step or a hold began
    bool isOver = false; ///< there is none to begin
};

/// Where a program that is played stands. Times are in ms since the epoch. Whoever plays it calls tick()
/// every `tickMs`, but not while it pauses.
struct Player
{
    enum class Phase { ToStart, Playing };

    static constexpr int tickMs = 10;

    bool progRunning = false;
    bool progPaused = false; ///< ticks do nothing; the clocks go on
    qint64 progStartMs = 0;
    qint64 stepStartMs = 0;
    qint64 stepDueMs = 0; ///< when the step to start, or the one that plays, should have started
    double stepTime = 0.0; ///< s, as read when the step started
    Phase stepPhase = Phase::ToStart;
    BlockCursor progWalk; ///< curStep, groupTimes, groupCount, groupStart

    /// Begins with the first row.
    void start(const ProgramRows& rows, qint64 nowMs);
    void stop() { progRunning = false; }

    bool isToStart() const { return stepPhase == Phase::ToStart; }
    /// Whether the row's time has passed, which a hold's always has.
    bool isStepOver(qint64 nowMs) const;
    /// Goes on to the next row when the step is over, and begins the row that is to start; a hold pauses.
    PlayerTick tick(const ProgramRows& rows, qint64 nowMs);

private:
    BlockCursor::Move endStep(const ProgramRows& rows, qint64 nowMs);
    void startStep(const StepPlan& plan, qint64 nowMs);
};
