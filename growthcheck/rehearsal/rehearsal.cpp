#include "growthcheck/rehearsal/rehearsal.h"

#include "growthcheck/rehearsal/rehearsedcells.h"
#include "program/steprows.h"

#include <cmath>

namespace GrowthCheck {

namespace {

constexpr int mostSteps = 20000;
constexpr int mostSetPoints = 50000;
constexpr int mostInTail = 10000; // set points a channel
constexpr qint64 longestMs = 1000000LL * 366 * 24 * 3600 * 1000; // a million years
constexpr int fewestFolded = 2; // passes: less is not worth a word

class Rehearsal
{
public:
    Rehearsal(const QVector<ProgramStep>& steps, const Assumptions& taken)
        : rows(steps)
        , holdMs(taken.holdMs)
        , cells(timeline, taken)
    {
    }

    Timeline play()
    {
        timeline.shownTotalSec = totalTimeSec(rows);
        player.start(rows, 0);
        for (nowMs = Player::tickMs; playTick() && goOn(); nowMs = nextTickMs()) { }
        timeline.endMs = nowMs;
        if (timeline.stop == Timeline::Stop::AtEnd) {
            cells.finish(mostInTail);
        }
        return timeline;
    }

private:
    // What the tick at `nowMs` does. False when the program is over.
    bool playTick()
    {
        player.progPaused = false;
        const PlayerTick tick = player.tick(rows, nowMs);
        if (tick.ended) {
            finishStep(tick);
        }
        if (tick.isOver || timeline.stop != Timeline::Stop::AtEnd) {
            return false;
        }
        if (tick.ended == BlockCursor::Move::Repeat) {
            considerFold();
        } else if (tick.ended != BlockCursor::Move::SameBlock) {
            beginPass(cells.standing(nowMs, nowMs));
        }
        beginStep(*tick.begun);
        return true;
    }

    void finishStep(const PlayerTick& tick)
    {
        QVector<int> replaced;
        if (tick.begun) {
            for (const StepRamp& ramp : tick.begun->ramps) {
                replaced.append(ramp.channel);
            }
        }
        PlannedStep& step = timeline.steps.last();
        step.setPoints = cells.advance(nowMs, replaced, mostSetPoints - setPoints);
        step.endMs = nowMs;
        setPoints += step.setPoints.size();
        if (setPoints >= mostSetPoints) {
            timeline.stop = Timeline::Stop::TooMuch;
        }
    }

    void beginStep(const StepPlan& plan)
    {
        const BlockCursor& at = player.progWalk;
        PlannedStep step;
        step.row = at.curStep;
        step.pass = at.groupCount + 1;
        step.times = at.groupTimes;
        step.group = rows.group(at.curStep);
        step.plan = plan;
        step.startMs = nowMs;
        step.endMs = nowMs;
        step.holdsBefore = timeline.holds;
        timeline.holds += plan.kind == StepPlan::Kind::Hold ? 1 : 0;
        ++timeline.starts;
        timeline.steps.append(step);
        for (const StepRamp& ramp : plan.ramps) {
            cells.begin(ramp, nowMs);
        }
    }

    bool goOn()
    {
        if (timeline.steps.size() >= mostSteps) {
            timeline.stop = Timeline::Stop::TooMuch;
        } else if (1000.0 * player.stepTime > static_cast<double>(longestMs - nowMs)) {
            timeline.stop = Timeline::Stop::TooLong;
        }
        return timeline.stop == Timeline::Stop::AtEnd;
    }

    // The tick that ends the step that plays; the operator goes on from a hold after a while.
    qint64 nextTickMs() const
    {
        if (player.progPaused) {
            const qint64 waitedTicks = (holdMs + Player::tickMs - 1) / Player::tickMs;
            return nowMs + (waitedTicks + 1) * Player::tickMs;
        }
        const auto wholeTicks = static_cast<qint64>(std::floor(1000.0 * player.stepTime / Player::tickMs));
        qint64 tickMs = nowMs + wholeTicks * Player::tickMs;
        while (!player.isStepOver(tickMs)) {
            tickMs += Player::tickMs;
        }
        return tickMs;
    }

    void beginPass(const QString& standing)
    {
        passStartMs = nowMs;
        passStep = timeline.steps.size();
        passStanding = standing;
    }

    // A pass begins. When the one before began like it, so will all that follow.
    void considerFold()
    {
        const QString standing = cells.standing(nowMs, passStartMs);
        const qint64 periodMs = nowMs - passStartMs;
        const int firstPass = player.progWalk.groupCount + 1;
        const int left = player.progWalk.groupTimes - firstPass; // the last one is played
        const bool isAlike = standing == passStanding;
        const bool hasRoom = static_cast<double>(left) * static_cast<double>(periodMs)
            < static_cast<double>(longestMs - nowMs);
        if (isAlike && !hasRoom) {
            timeline.stop = Timeline::Stop::TooLong;
        } else if (isAlike && left >= fewestFolded) {
            fold(firstPass, periodMs);
        }
        beginPass(standing);
    }

    void fold(int firstPass, qint64 periodMs)
    {
        Fold fold;
        fold.firstStep = passStep;
        fold.lastStep = timeline.steps.size() - 1;
        fold.firstPass = firstPass;
        fold.passes = player.progWalk.skipToLastPass();
        fold.startMs = nowMs;
        fold.periodMs = periodMs;
        fold.holds = timeline.holds - timeline.steps[passStep].holdsBefore;
        const qint64 byMs = fold.passes * periodMs;
        fold.levels = cells.leaveOut(nowMs, byMs, passStartMs);
        nowMs += byMs;
        player.stepStartMs = nowMs;
        timeline.holds += fold.passes * fold.holds;
        timeline.starts += static_cast<qint64>(fold.passes) * (fold.lastStep - fold.firstStep + 1);
        timeline.folds.append(fold);
    }

    const StepRows rows;
    const qint64 holdMs;
    Timeline timeline;
    RehearsedCells cells;
    Player player;
    qint64 nowMs = 0;
    int setPoints = 0;
    qint64 passStartMs = 0; // of the pass that plays
    int passStep = 0; // its first step's place in the timeline
    QString passStanding; // how it began
};

} // namespace

const Fold* Timeline::foldAfter(int index) const
{
    for (const Fold& fold : folds) {
        if (fold.lastStep == index) {
            return &fold;
        }
    }
    return nullptr;
}

qint64 Timeline::timesAlike(int index) const
{
    qint64 times = 1;
    for (const Fold& fold : folds) {
        times += fold.firstStep <= index && index <= fold.lastStep ? fold.passes : 0;
    }
    return times;
}

Timeline rehearse(const QVector<ProgramStep>& steps, const Assumptions& assumptions)
{
    return Rehearsal(steps, assumptions).play();
}

} // namespace GrowthCheck
