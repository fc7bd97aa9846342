#include "growthcheck/output/reportparts.h"

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"

namespace GrowthCheck {

namespace {

QString dateAndTime(const QDateTime& time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString hundredths(qint64 ms)
{
    return QString::number(static_cast<double>(ms) / 1000.0, 'f', 2);
}

QString endName(RecordedRun::End end)
{
    switch (end) {
    case RecordedRun::End::Over:
        return Words::tr("played to its end");
    case RecordedRun::End::Stopped:
        return Words::tr("stopped by the operator");
    case RecordedRun::End::BrokenOff:
        return Words::tr("broken off");
    case RecordedRun::End::StillRuns:
        break;
    }
    return Words::tr("still running");
}

} // namespace

QStringList summaryLines(const CheckedProgram& checked)
{
    const Timeline& timeline = checked.timeline;
    QStringList lines;
    lines.append(Words::tr("steps in the table: %1; starts of steps: %2; holds: %3")
                     .arg(checked.program.steps.size())
                     .arg(timeline.starts)
                     .arg(timeline.holds));
    lines.append(Words::tr("total shown: %1 s; plays: %2")
                     .arg(totalText(timeline.shownTotalSec), elapsedText(timeline.endMs, timeline.holds)));
    const QDateTime& runAt = checked.assumptions.runAt;
    if (runAt.isValid()) {
        lines.append(Words::tr("Run at %1; ends %2").arg(dateAndTime(runAt), endText(runAt, timeline.endMs)));
    }
    return lines;
}

QStringList summaryLines(const Comparison& comparison)
{
    const RecordedRun& run = comparison.run;
    qint64 lateMs = 0;
    qint64 waitedMs = 0;
    for (const ComparedStep& step : comparison.steps) {
        lateMs = qMax(lateMs, step.lateMs);
        waitedMs = qMax(waitedMs, step.waitedMs);
    }
    return {Words::tr("run %1 of %2 in %3")
                .arg(QString::number(run.number), QString::number(comparison.runs), comparison.journalName),
        Words::tr("Run at %1; %2 after %3")
            .arg(dateAndTime(run.startedAt), endName(run.end), elapsedText(comparison.endMs)),
        Words::tr("planned: %1; starts of steps: %2; latest by %3 s; shutters waited %4 s at the most")
            .arg(elapsedText(comparison.plan.endMs, comparison.plan.holds),
                QString::number(comparison.steps.size()), hundredths(lateMs), hundredths(waitedMs))};
}

} // namespace GrowthCheck
