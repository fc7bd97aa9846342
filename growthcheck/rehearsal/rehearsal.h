#pragma once

#include "growthcheck/rehearsal/assumptions.h"
#include "growthcheck/rehearsal/timeline.h"
#include "program/programstep.h"

namespace GrowthCheck {

/// Plays a program without a station: by the same values (the player, the walk, the ramps), with ticks every
/// 10 ms of which only those are looked at in which something happens.
///
/// What it takes for granted besides `assumptions`: ticks come on time; the panel shows the set point that
/// was sent last as soon as a polling round has read it; nobody touches the station.
///
/// Passes of a group that begin alike are folded, so that two thousand million take no longer than three. A
/// program that is not over after 20,000 steps or 50,000 set points all the same is looked at up to there.
Timeline rehearse(const QVector<ProgramStep>& steps, const Assumptions& assumptions);

} // namespace GrowthCheck
