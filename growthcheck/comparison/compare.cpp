#include "growthcheck/comparison/compare.h"

#include "base/number.h"
#include "growthcheck/check/words.h"
#include "growthcheck/comparison/followedlink.h"
#include "growthcheck/comparison/followedramps.h"
#include "growthcheck/comparison/followedsteps.h"
#include "growthcheck/comparison/runkinds.h"
#include "program/steprows.h"

namespace GrowthCheck {

namespace {

// Hands the events of a run to those that follow it.
class Following
{
public:
    explicit Following(Comparison& target)
        : comparison(target)
        , steps(target)
        , ramps(target)
        , link(target)
    {
    }

    void follow()
    {
        for (const RecordedEvent& event : qAsConst(comparison.run.events)) {
            comparison.endMs = event.ms;
            take(event);
        }
        endStep(comparison.endMs);
        ramps.end(comparison.endMs);
    }

private:
    void take(const RecordedEvent& event)
    {
        const QString& kind = event.line.kind;
        if (kind == QLatin1String("step")) {
            endStep(event.ms);
            steps.takeStep(event);
            ramps.beginStep();
        } else if (kind == QLatin1String("edit")) {
            steps.takeEdit(event);
        } else if (kind == QLatin1String("shutters")) {
            steps.takeShutters(event);
        } else if (kind == QLatin1String("pause") || kind == QLatin1String("hold")) {
            steps.takePause(event);
        } else if (kind == QLatin1String("resume")) {
            steps.takeResume(event);
        } else if (kind == QLatin1String("minute")) {
            link.takeMinute(event);
        } else if (!comparison.steps.isEmpty() && takeRampEvent(kind, event)) {
            return;
        } else {
            link.take(event);
        }
    }

    bool takeRampEvent(const QString& kind, const RecordedEvent& event)
    {
        if (kind == QLatin1String("ramp")) {
            ramps.takeRamp(event);
        } else if (kind == QLatin1String("ramp-refused")) {
            ramps.takeRefusal(event);
        } else if (kind == QLatin1String("set-point")) {
            ramps.takeSetPoint(event);
        } else if (kind == QLatin1String("ramp-end")) {
            ramps.takeEnd(event);
        } else {
            return false;
        }
        return true;
    }

    void endStep(qint64 ms)
    {
        if (!comparison.steps.isEmpty()) {
            steps.endStep(ms);
            ramps.endStep();
        }
    }

    Comparison& comparison;
    FollowedSteps steps;
    FollowedRamps ramps;
    FollowedLink link;
};

void compareTables(Comparison& comparison, const QVector<ProgramStep>& steps)
{
    const StepRows file(steps);
    const StepRows table(comparison.run.table);
    for (int row = 0; row < programRows; ++row) {
        if (file.step(row) != table.step(row)) {
            Finding finding;
            finding.kind = RunKinds::tableDiffers;
            finding.step = row + 1;
            finding.text = Words::tr("The row was not that of the file when Run was pressed.");
            comparison.findings.append(finding);
        }
    }
}

void tellEnd(Comparison& comparison)
{
    Finding finding;
    finding.step = comparison.steps.isEmpty() ? 0 : comparison.steps.constLast().row + 1;
    switch (comparison.run.end) {
    case RecordedRun::End::Over:
        return;
    case RecordedRun::End::Stopped:
        finding.kind = RunKinds::stopped;
        finding.text = Words::tr("The operator stopped the program here.");
        break;
    case RecordedRun::End::BrokenOff:
        finding.kind = RunKinds::brokenOff;
        finding.text = Words::tr("The station ended here, while the program ran.");
        break;
    case RecordedRun::End::StillRuns:
        finding.kind = RunKinds::stillRuns;
        finding.text = Words::tr("The journal ends here, while the program runs.");
        break;
    }
    comparison.findings.append(finding);
}

} // namespace

Comparison compare(const CheckedProgram& checked, const RecordedRun& run)
{
    Comparison comparison;
    comparison.programName = checked.program.fileName;
    comparison.run = run;
    comparison.plan = checked.timeline;
    compareTables(comparison, checked.program.steps);
    Following(comparison).follow();
    tellEnd(comparison);
    sortFindings(comparison.findings);
    return comparison;
}

Assumptions assumptionsOf(const Assumptions& told, const RecordedRun& run)
{
    Assumptions assumptions = told;
    assumptions.runAt = run.startedAt;
    for (int channel = 0; channel < run.measured.size(); ++channel) {
        Assumptions::Start& start = assumptions.starts.at(static_cast<size_t>(channel));
        const std::optional<double> degC = readNumber(run.measured[channel]);
        if (start.kind == Assumptions::Start::Kind::NotTold) {
            start.kind = degC ? Assumptions::Start::Kind::Known : Assumptions::Start::Kind::None;
            start.degC = degC.value_or(0.0);
        }
    }
    return assumptions;
}

} // namespace GrowthCheck
