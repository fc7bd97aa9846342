#include "growthcheck/rehearsal/playedsteps.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

bool isLevelIn(const Fold& fold, int channel)
{
    return std::any_of(fold.levels.begin(), fold.levels.end(),
        [channel](const PlannedSetPoint& level) { return level.channel == channel; });
}

// Of the ramps without a rate: the minutes of their grid from `fromMs` on and before `untilMs`.
void addLevels(const Fold& fold, qint64 fromMs, qint64 untilMs, QVector<PlannedSetPoint>& setPoints)
{
    for (PlannedSetPoint level : fold.levels) {
        const qint64 behindMs = qMax<qint64>(0, fromMs - level.dueMs);
        level.dueMs += (behindMs + Ramp::stepMs - 1) / Ramp::stepMs * Ramp::stepMs;
        for (; level.dueMs < untilMs; level.dueMs += Ramp::stepMs) {
            setPoints.append(level);
        }
    }
}

// The step in the pass `pass` of those that are folded, counted from 0.
PlayedStep inPass(const PlannedStep& planned, const Fold& fold, int pass)
{
    const qint64 laterMs = (pass + 1) * fold.periodMs;
    PlayedStep played{planned, planned.startMs + laterMs, planned.endMs + laterMs, fold.firstPass + pass,
        planned.holdsBefore + (pass + 1) * fold.holds, {}};
    for (PlannedSetPoint setPoint : planned.setPoints) {
        if (!isLevelIn(fold, setPoint.channel)) {
            setPoint.dueMs += laterMs;
            played.setPoints.append(setPoint);
        }
    }
    addLevels(fold, played.startMs, played.endMs, played.setPoints);
    std::stable_sort(played.setPoints.begin(), played.setPoints.end(),
        [](const PlannedSetPoint& a, const PlannedSetPoint& b) { return a.dueMs < b.dueMs; });
    return played;
}

bool playFold(const Timeline& timeline, const Fold& fold, const std::function<bool(const PlayedStep&)>& take)
{
    for (int pass = 0; pass < fold.passes; ++pass) {
        for (int index = fold.firstStep; index <= fold.lastStep; ++index) {
            if (!take(inPass(timeline.steps[index], fold, pass))) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

bool playSteps(const Timeline& timeline, const std::function<bool(const PlayedStep&)>& take)
{
    for (int index = 0; index < timeline.steps.size(); ++index) {
        const PlannedStep& step = timeline.steps[index];
        if (!take({step, step.startMs, step.endMs, step.pass, step.holdsBefore, step.setPoints})) {
            return false;
        }
        const Fold* fold = timeline.foldAfter(index);
        if (fold != nullptr && !playFold(timeline, *fold, take)) {
            return false;
        }
    }
    return true;
}

} // namespace GrowthCheck
