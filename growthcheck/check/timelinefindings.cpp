#include "growthcheck/check/timelinefindings.h"

#include "growthcheck/check/kinds.h"
#include "growthcheck/check/rampfindings.h"
#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "program/steprows.h"

#include <QStringList>

#include <cmath>

namespace GrowthCheck {

namespace {

constexpr double hotDegC = 100.0;
constexpr double worthTellingSec = 1.0;

void tell(Findings& findings, const Kind& kind, int row, const QString& text, int channel = -1)
{
    Finding finding;
    finding.kind = kind;
    finding.step = row + 1;
    finding.channel = channel;
    finding.text = text;
    findings.append(finding);
}

// Why the total that the station shows is not the time that the program takes.
QString whyTotalsDiffer(const Timeline& timeline)
{
    const PlannedStep& last = timeline.steps.constLast();
    QStringList reasons{Words::tr("every step begins up to 10 ms late")};
    if (timeline.holds > 0) {
        reasons.append(Words::tr("waits at holds are not counted"));
    }
    if (last.row == programRows - 1 && last.plan.kind == StepPlan::Kind::Step) {
        reasons.append(Words::tr("step %1 is played and not counted (%2 s)")
                           .arg(QString::number(programRows), QString::number(last.plan.timeSec, 'g', 6)));
    }
    return reasons.join(QLatin1String("; "));
}

void checkLength(const Timeline& timeline, Findings& findings)
{
    if (timeline.steps.isEmpty()) {
        return;
    }
    const PlannedStep& last = timeline.steps.constLast();
    const QString place = elapsedText(last.startMs);
    if (timeline.stop == Timeline::Stop::TooLong) {
        tell(findings, Kinds::endlessStep, last.row,
            Words::tr("The step begins after %1, and it or its repeats do not end within a million years.")
                .arg(place));
        return;
    }
    if (timeline.stop == Timeline::Stop::TooMuch) {
        tell(findings, Kinds::checkStops, last.row,
            Words::tr(
                "The check stops here, after %1: more than 20,000 different steps or 50,000 set points. "
                "What follows is not looked at.")
                .arg(place));
        return;
    }
    const double playedSec = static_cast<double>(timeline.endMs) / 1000.0;
    if (std::abs(playedSec - timeline.shownTotalSec) >= worthTellingSec) {
        tell(findings, Kinds::totalTime, -1,
            Words::tr("The station shows a total of %1 s and plays %2 s: %3.")
                .arg(totalText(timeline.shownTotalSec), totalText(playedSec), whyTotalsDiffer(timeline)));
    }
}

void checkShuttersAtEnd(const Timeline& timeline, Findings& findings)
{
    QStringList open;
    const PlannedStep& last = timeline.steps.constLast();
    for (int shutter = 0; shutter < last.plan.shutters.size(); ++shutter) {
        if (last.plan.shutters[shutter]) {
            open.append(channelName(shutter));
        }
    }
    if (!open.isEmpty()) {
        tell(findings, Kinds::openAtEnd, last.row,
            Words::tr("The program ends with open shutters, and the station leaves them so: %1.")
                .arg(open.join(QLatin1Char(' '))));
    }
}

void checkRampsAtEnd(const Timeline& timeline, Findings& findings)
{
    for (const PlannedStep& step : timeline.steps) {
        for (const PlannedRamp& ramp : step.ramps) {
            if (ramp.end != PlannedRamp::End::Runs) {
                continue;
            }
            if (timeline.endlessAtEnd[ramp.channel]) {
                tell(findings, Kinds::rampsAtEnd, step.row,
                    Words::tr(
                        "The ramp still runs when the program ends, and sends %1 deg C every minute until "
                        "somebody stops it.")
                        .arg(ramp.plan.targetDegC),
                    ramp.channel);
            } else if (!looksEqual(ramp.lastDegC, ramp.plan.targetDegC)) {
                tell(findings, Kinds::rampsAtEnd, step.row,
                    Words::tr("The ramp still runs when the program ends: it goes on from %1 to %2 deg C.")
                        .arg(ramp.lastDegC)
                        .arg(ramp.plan.targetDegC),
                    ramp.channel);
            }
        }
    }
}

void checkHeatAtEnd(const Timeline& timeline, const Assumptions& assumptions, Findings& findings)
{
    QVector<double> degC;
    for (const Assumptions::Start& start : assumptions.starts) {
        degC.append(start.degC);
    }
    for (const PlannedStep& step : timeline.steps) {
        for (const PlannedSetPoint& setPoint : step.setPoints) {
            degC[setPoint.channel] = setPoint.degC;
        }
    }
    for (const PlannedSetPoint& setPoint : timeline.tail) {
        degC[setPoint.channel] = setPoint.degC;
    }
    QStringList hot;
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (degC[channel] > hotDegC) {
            hot.append(QStringLiteral("%1 %2").arg(channelName(channel)).arg(degC[channel]));
        }
    }
    if (!hot.isEmpty()) {
        tell(findings, Kinds::hotAtEnd, timeline.steps.constLast().row,
            Words::tr("These stay hot when the program is over: %1 deg C.")
                .arg(hot.join(QLatin1String(", "))));
    }
}

} // namespace

Findings checkTimeline(const Timeline& timeline, const Assumptions& assumptions)
{
    Findings findings;
    checkRamps(timeline, findings);
    checkLength(timeline, findings);
    if (timeline.stop == Timeline::Stop::AtEnd && !timeline.steps.isEmpty()) {
        checkShuttersAtEnd(timeline, findings);
        checkRampsAtEnd(timeline, findings);
        checkHeatAtEnd(timeline, assumptions, findings);
    }
    return findings;
}

} // namespace GrowthCheck
