#pragma once

#include "growthcheck/comparison/comparison.h"
#include "growthcheck/rehearsal/timeline.h"

#include <QString>
#include <QStringList>

/// How a step's parts read, on a terminal and on the page.
namespace GrowthCheck {

/// "Ga As4"; empty when none is open.
QString openNames(const QVector<bool>& shutters);

/// What a channel is sent, "?" behind what may not go out; long lists are cut.
QString setPointsText(const QVector<PlannedSetPoint>& setPoints, int channel);

/// A ramp that a step asks for, with the set points that are sent in the step.
QString rampText(const PlannedRamp& ramp, const QVector<PlannedSetPoint>& setPoints);

/// All of a step's ramps, and the set points of those that go on from before, in one text.
QString plannedText(const PlannedStep& step);

/// What became of a step's shutter command: how long it waited in s, or why it did not leave.
QString commandText(const ComparedStep& step);

/// What a channel was sent in a step; what was planned where that is another. Empty when nothing was.
QString sentText(const ComparedStep& step, int channel);
/// The same of all channels, with their names.
QString sentText(const ComparedStep& step);

/// By how much each channel was off its set point: "Ga 0.3 (0.5)". Empty when no minute tells.
QString differencesText(const ComparedStep& step);

} // namespace GrowthCheck
