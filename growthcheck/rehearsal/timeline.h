#pragma once

#include "base/channels.h"
#include "program/player.h"
#include "temperature/ramp.h"

#include <QString>
#include <QVector>

namespace GrowthCheck {

/// A set point on its way to a controller. Times are in ms since Run was pressed.
struct PlannedSetPoint
{
    int channel = 0;
    qint64 dueMs = 0; ///< it goes out at the channel's next turn, within a polling round
    double degC = 0.0;
    bool isSure = true; ///< not one whose ramp is replaced before the channel's turn must have come
};

/// A ramp that a step asks for.
struct PlannedRamp
{
    enum class From {
        Known, ///< a temperature that was told, or where a ramp before has led to
        Lagging, ///< led there, but perhaps not yet: the panel may show what was before
        NotTold, ///< nobody said: counted as 0, like None
        None, ///< the panel shows none, which the station counts as 0
    };
    enum class End {
        Refused, ///< it never began
        Reached, ///< its target was sent
        Replaced, ///< by another step's
        Runs, ///< still, when the program ends
    };

    int channel = 0;
    QString target; ///< deg C, as the row says it
    QString minutes;
    Ramp::Plan plan;
    From from = From::Known;
    End end = End::Runs;
    int replacedBy = -1; ///< the step's place in the timeline that cut it short
    int sent = 0; ///< set points until its end
    double lastDegC = 0.0; ///< the last of them
    bool outlastsStep = false; ///< it runs when its own step ends
    double stepEndDegC = 0.0; ///< what was sent for sure by then
    /// When it sends its target once more, since the sum of its steps falls short of it by a rounding; -1
    /// when it does not.
    qint64 extraDueMs = -1;
};

/// A step's start and what happens until the next one. Times are in ms since Run was pressed.
struct PlannedStep
{
    int row = 0;
    int pass = 1; ///< of its group, counted from 1
    int times = 1; ///< the group's passes
    QString group;
    StepPlan plan;
    qint64 startMs = 0;
    qint64 endMs = 0; ///< when the next one starts
    qint64 holdsBefore = 0; ///< how often the operator was waited for until the start
    QVector<PlannedRamp> ramps;
    QVector<PlannedSetPoint> setPoints; ///< due in the step, in the order of their times
};

/// Passes of a group that are not listed, since each is like the one that is listed before them.
struct Fold
{
    int firstStep = 0; ///< the pass that is listed: its first step's place in the timeline ...
    int lastStep = 0; ///< ... and its last one's; the passes stand behind it
    int firstPass = 0; ///< which passes, counted from 1
    int passes = 0;
    qint64 startMs = 0; ///< of the first of them
    qint64 periodMs = 0; ///< how long each takes
    qint64 holds = 0; ///< in each
    /// Of ramps without a rate that began before: the first set point from `startMs` on; the same goes out
    /// every minute.
    QVector<PlannedSetPoint> levels;
};

/// A whole program, as it will be played.
struct Timeline
{
    enum class Stop {
        AtEnd, ///< the program's end
        TooLong, ///< it is not over within a million years
        TooMuch, ///< more steps or set points than are looked at
    };

    QVector<PlannedStep> steps;
    QVector<Fold> folds; ///< in the order of their times
    Stop stop = Stop::AtEnd;
    qint64 endMs = 0;
    qint64 holds = 0;
    qint64 starts = 0; ///< of steps, folded ones counted
    QVector<PlannedSetPoint> tail; ///< sent after the end by the ramps that still run; empty after a stop
    bool isTailCut = false; ///< more of them follow than are looked at
    /// By channel: whether its ramp stands still and goes on for ever. No one's does after a stop.
    QVector<bool> endlessAtEnd = QVector<bool>(Channels::count, false);
    double shownTotalSec = 0.0; ///< what the station shows

    /// Whether something is missing at its end.
    bool isCut() const { return stop != Stop::AtEnd || isTailCut; }
    /// How often the operator was waited for until a fold's first pass.
    qint64 holdsBefore(const Fold& fold) const { return steps[fold.firstStep].holdsBefore + fold.holds; }
    /// How often the step at `index` is played alike: once, and in the passes that are folded onto it.
    qint64 timesAlike(int index) const;
    /// The fold behind the step at `index`, if there is one.
    const Fold* foldAfter(int index) const;
};

} // namespace GrowthCheck
