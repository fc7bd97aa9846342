#include "growthcheck/comparison/followedsteps.h"

#include "growthcheck/check/words.h"
#include "growthcheck/comparison/runkinds.h"
#include "program/steprows.h"
#include "shutter/shuttercommand.h"

namespace GrowthCheck {

namespace {

// What is worth a word: ticks come every 10 ms, and a command waits for a controller's reply.
constexpr qint64 lateMs = 100;
constexpr qint64 waitedMs = 500;

// Of the journal's letters.
QVector<bool> statesOf(const QString& letters)
{
    QVector<bool> open;
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        open.append(shutter < letters.size() && letters[shutter] == QLatin1Char('o'));
    }
    return open;
}

QString inSeconds(qint64 ms)
{
    return QString::number(static_cast<double>(ms) / 1000.0, 'f', 2);
}

} // namespace

FollowedSteps::FollowedSteps(Comparison& target)
    : comparison(target)
    , table(target.run.table)
{
    table.resize(programRows);
}

void FollowedSteps::takeEdit(const RecordedEvent& event)
{
    const int row = event.value("step").toInt() - 1;
    if (row < 0 || row >= table.size()) {
        return;
    }
    table[row] = recordedStep(event.value("fields"));
    Finding finding;
    finding.kind = RunKinds::edited;
    finding.step = row + 1;
    finding.text = Words::tr("The row was edited while the program ran, %1 s after its start.")
                       .arg(inSeconds(event.ms));
    addOnce(comparison.findings, finding);
}

void FollowedSteps::takeStep(const RecordedEvent& event)
{
    ComparedStep begun;
    begun.row = qBound(0, event.value("step").toInt() - 1, programRows - 1);
    begun.pass = event.value("pass").toInt();
    begun.times = event.value("times").toInt();
    begun.group = event.value("group");
    begun.plan = planOf(table[begun.row]);
    begun.startMs = event.ms;
    begun.endMs = event.ms;
    begun.lateMs = event.value("late-ms").toLongLong();
    comparison.steps.append(begun);
    checkWalk(begun);
    checkLateness();
    wasPaused = pausedSinceMs >= 0;
}

void FollowedSteps::checkWalk(const ComparedStep& begun)
{
    const StepRows rows(table);
    if (isOnWalk) {
        walk.advance(rows);
    } else {
        walk = BlockCursor::atStart(rows);
    }
    isOnWalk = true;
    if (walk.curStep == begun.row && walk.groupCount + 1 == begun.pass) {
        return;
    }
    tell(RunKinds::stepUnexpected,
        Words::tr("The step began where pass %1 of step %2 was due.")
            .arg(walk.groupCount + 1)
            .arg(walk.curStep + 1));
    walk.curStep = begun.row;
    walk.groupTimes = begun.times;
    walk.groupCount = begun.pass - 1;
    walk.groupStart = begun.row;
    while (walk.groupStart > 0 && rows.group(walk.groupStart - 1) == rows.group(begun.row)) {
        --walk.groupStart;
    }
}

void FollowedSteps::checkLateness()
{
    if (step().lateMs > lateMs && !wasPaused) {
        tell(RunKinds::stepLate, Words::tr("The step began %1 s late.").arg(inSeconds(step().lateMs)));
    }
}

void FollowedSteps::takeShutters(const RecordedEvent& event)
{
    if (comparison.steps.isEmpty()) {
        return;
    }
    const QString open = event.value("open");
    const bool isConnected = event.value("link") == QLatin1String("up");
    if (isConnected) {
        comparison.shutters.append({event.ms, statesOf(open)});
    }
    const bool isOwn = open == shutterLetters(step().plan.shutters);
    if (!isOwn) {
        tell(RunKinds::shuttersByHand,
            Words::tr("The shutters were set to %1 where the step has %2.")
                .arg(shortened(open), shutterLetters(step().plan.shutters)));
        return;
    }
    if (step().command != ComparedStep::Command::Missing) {
        return;
    }
    step().command = isConnected ? ComparedStep::Command::Sent : ComparedStep::Command::NotConnected;
    step().commandMs = event.ms;
    step().waitedMs = event.ms - step().startMs;
    if (!isConnected) {
        tell(RunKinds::shuttersNotSent,
            Words::tr("The shutter command was not sent: the link to the adapter was down."));
    } else if (step().waitedMs > waitedMs) {
        tell(RunKinds::shuttersWaited,
            Words::tr(
                "The shutters were commanded %1 s after the step began: a controller's reply was awaited.")
                .arg(inSeconds(step().waitedMs)));
    }
}

void FollowedSteps::takePause(const RecordedEvent& event)
{
    pausedSinceMs = event.ms;
    wasPaused = true;
    if (event.line.kind == QLatin1String("pause") && !comparison.steps.isEmpty()) {
        tell(RunKinds::paused,
            Words::tr("The program was paused %1 s after the step began.")
                .arg(inSeconds(event.ms - step().startMs)));
    }
}

void FollowedSteps::takeResume(const RecordedEvent& event)
{
    if (pausedSinceMs >= 0 && !comparison.steps.isEmpty()) {
        step().pausedMs += event.ms - pausedSinceMs;
    }
    pausedSinceMs = -1;
}

void FollowedSteps::endStep(qint64 ms)
{
    if (comparison.steps.isEmpty()) {
        return;
    }
    step().endMs = ms;
    if (step().command == ComparedStep::Command::Missing) {
        tell(RunKinds::shuttersOvertaken,
            Words::tr("The shutter command never left: the step was over before the bus was free."));
    }
}

void FollowedSteps::tell(const Kind& kind, const QString& text)
{
    Finding finding;
    finding.kind = kind;
    finding.text = text;
    finding.step = step().row + 1;
    finding.pass = step().times > 1 ? step().pass : 0;
    addOnce(comparison.findings, finding);
}

} // namespace GrowthCheck
