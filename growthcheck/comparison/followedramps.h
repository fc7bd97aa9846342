#pragma once

#include "growthcheck/comparison/comparison.h"
#include "temperature/ramp.h"

namespace GrowthCheck {

/// The ramps of a run, followed through the journal: each again from the temperature that it began with, so
/// that every set point can be held against the one that was due.
class FollowedRamps
{
public:
    explicit FollowedRamps(Comparison& target)
        : comparison(target)
    {
    }

    /// The step before is over.
    void endStep() { tellMissing(); }
    /// A step begins, whose plan is that of the comparison's last one.
    void beginStep() { awaited = step().plan.ramps; }
    /// Nothing comes any more.
    void end(qint64 ms);

    void takeRamp(const RecordedEvent& event);
    void takeRefusal(const RecordedEvent& event);
    void takeSetPoint(const RecordedEvent& event);
    void takeEnd(const RecordedEvent& event);

private:
    struct Cell
    {
        Ramp::Run ramp;
        double targetDegC = 0.0;
        bool isPlanned = false; ///< by the program, not by hand
    };

    ComparedStep& step() { return comparison.steps.last(); }
    std::optional<StepRamp> takeFromAwaited(int channel);
    void tellMissing();
    void lookForMissing(int channel, qint64 ms);
    void tell(const Kind& kind, const ComparedStep& step, int channel, const QString& text);

    Comparison& comparison;
    std::array<Cell, Channels::count> cells;
    QVector<StepRamp> awaited; ///< of the step that plays
};

} // namespace GrowthCheck
