#pragma once

#include "growthcheck/rehearsal/timeline.h"

#include <functional>

namespace GrowthCheck {

/// A step of a timeline in the pass that is played; times are in ms since Run was pressed.
struct PlayedStep
{
    const PlannedStep& planned;
    qint64 startMs;
    qint64 endMs;
    int pass; ///< of its group, counted from 1
    qint64 holdsBefore;
    QVector<PlannedSetPoint> setPoints; ///< due in it
};

/// Gives `take` the steps of the program in the order in which they are played, folded passes one by one,
/// until it says false. True when it had them all.
bool playSteps(const Timeline& timeline, const std::function<bool(const PlayedStep&)>& take);

} // namespace GrowthCheck
