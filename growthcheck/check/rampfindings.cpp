#include "growthcheck/check/rampfindings.h"

#include "base/number.h"
#include "growthcheck/check/kinds.h"
#include "growthcheck/check/words.h"
#include "temperature/controllermessage.h"

namespace GrowthCheck {

namespace {

QString shown(double number)
{
    return QString::number(number, 'g', 6);
}

class RampCheck
{
public:
    RampCheck(const Timeline& checked, Findings& target)
        : timeline(checked)
        , findings(target)
    {
    }

    // A ramp of a step that is played `times` times alike.
    void check(const PlannedStep& step, const PlannedRamp& ramp, qint64 times)
    {
        count = times;
        checkStart(step, ramp);
        if (ramp.end == PlannedRamp::End::Refused) {
            checkRefusal(step, ramp);
            return;
        }
        const double targetDegC = ramp.plan.targetDegC;
        if (ramp.plan.rate == 0.0) {
            tell(Kinds::levelRamp, step, ramp,
                Words::tr(
                    "The cell is at its set point %1 already: the ramp has no rate, never ends by itself "
                    "and sends the same again every minute.")
                    .arg(shown(targetDegC)));
        } else if (ramp.replacedBy >= 0 && !looksEqual(ramp.lastDegC, targetDegC)) {
            tell(Kinds::rampReplaced, timeline.steps[ramp.replacedBy], ramp,
                Words::tr("A new ramp begins while that of step %1 still runs: it has got to %2 of %3 deg C.")
                    .arg(QString::number(step.row + 1), shown(ramp.lastDegC), shown(targetDegC)));
        } else if (ramp.outlastsStep && !looksEqual(ramp.stepEndDegC, targetDegC)) {
            tell(Kinds::rampOutlastsStep, step, ramp,
                Words::tr("The ramp to %1 deg C may still run when the step ends, and be cut short by the "
                          "next one: it has got to %2 by then.")
                    .arg(shown(targetDegC), shown(ramp.stepEndDegC)));
        } else if (ramp.extraDueMs >= 0 || ramp.outlastsStep) {
            tell(Kinds::extraSetPoint, step, ramp,
                Words::tr("The ramp may send %1 deg C once more when the step is over: a rounding, and no "
                          "change.")
                    .arg(shown(targetDegC)));
        }
    }

private:
    void checkStart(const PlannedStep& step, const PlannedRamp& ramp)
    {
        switch (ramp.from) {
        case PlannedRamp::From::Known:
            break;
        case PlannedRamp::From::Lagging:
            tell(Kinds::startLagging, step, ramp,
                Words::tr("The ramp begins so soon after another one that the panel may still show what was "
                          "before: %1 deg C is taken for its start.")
                    .arg(shown(ramp.plan.currentDegC)));
            break;
        case PlannedRamp::From::NotTold:
            tell(Kinds::startUnknown, step, ramp,
                Words::tr("The ramp to %1 deg C starts from what the panel shows then, which nobody has told "
                          "here (--start): counted as 0. %2")
                    .arg(shown(ramp.plan.targetDegC), leastStart(ramp)));
            break;
        case PlannedRamp::From::None:
            tell(Kinds::startUnknown, step, ramp,
                Words::tr("The panel shows no temperature: the ramp to %1 deg C starts from 0. %2")
                    .arg(shown(ramp.plan.targetDegC), leastStart(ramp)));
            break;
        }
    }

    static QString leastStart(const PlannedRamp& ramp)
    {
        const double leastDegC
            = ramp.plan.targetDegC - Channels::list[ramp.channel].riseLimit * ramp.plan.durationMin;
        return leastDegC <= 0.0 ? Words::tr("It is not too fast from there.")
                                : Words::tr("From less than %1 it is refused.").arg(shown(leastDegC));
    }

    void checkRefusal(const PlannedStep& step, const PlannedRamp& ramp)
    {
        const bool isTold = ramp.from == PlannedRamp::From::NotTold; // that it may be refused
        if (isTold) {
            return;
        }
        if (ramp.plan.refusal == Ramp::Refusal::Duration) {
            tell(Kinds::rampRefused, step, ramp,
                Words::tr("The ramp from %1 to %2 deg C in %3 min is refused: too short a time for any "
                          "number. The program goes on without it.")
                    .arg(shown(ramp.plan.currentDegC), shown(ramp.plan.targetDegC), ramp.minutes));
            return;
        }
        const double limit = Channels::list[ramp.channel].riseLimit;
        const double leastMin = (ramp.plan.targetDegC - ramp.plan.currentDegC) / limit;
        tell(Kinds::rampRefused, step, ramp,
            Words::tr(
                "The ramp from %1 to %2 deg C in %3 min is refused: it would rise by %4 a minute, and %5 "
                "is the limit. The program goes on without it. It takes %6 min at the least.")
                .arg(shown(ramp.plan.currentDegC), shown(ramp.plan.targetDegC), ramp.minutes,
                    shown(ramp.plan.rate), shown(limit), shown(leastMin)));
    }

    void tell(const Kind& kind, const PlannedStep& step, const PlannedRamp& ramp, const QString& text)
    {
        Finding finding;
        finding.kind = kind;
        finding.step = step.row + 1;
        finding.pass = step.times > 1 ? step.pass : 0;
        finding.channel = ramp.channel;
        finding.text = text;
        finding.count = count;
        addOnce(findings, finding);
    }

    const Timeline& timeline;
    Findings& findings;
    qint64 count = 1;
};

} // namespace

bool looksEqual(double one, double other)
{
    return ControllerMessage::valueText(one) == ControllerMessage::valueText(other);
}

void checkRamps(const Timeline& timeline, Findings& findings)
{
    RampCheck check(timeline, findings);
    // What becomes of the ramps of a step that was not looked at to its end, nobody can say.
    const int cut = timeline.stop == Timeline::Stop::AtEnd ? 0 : 1;
    for (int index = 0; index < timeline.steps.size() - cut; ++index) {
        const PlannedStep& step = timeline.steps[index];
        for (const PlannedRamp& ramp : step.ramps) {
            check.check(step, ramp, timeline.timesAlike(index));
        }
    }
}

} // namespace GrowthCheck
