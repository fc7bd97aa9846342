// A run, held against its program, for programs.

#include "growthcheck/check/words.h"
#include "growthcheck/output/jsonparts.h"
#include "growthcheck/output/output.h"
#include "shutter/shuttercommand.h"

namespace GrowthCheck {

namespace {

QString endWord(RecordedRun::End end)
{
    switch (end) {
    case RecordedRun::End::Over:
        return QStringLiteral("over");
    case RecordedRun::End::Stopped:
        return QStringLiteral("stopped");
    case RecordedRun::End::BrokenOff:
        return QStringLiteral("broken off");
    case RecordedRun::End::StillRuns:
        break;
    }
    return QStringLiteral("still runs");
}

QString commandWord(ComparedStep::Command command)
{
    switch (command) {
    case ComparedStep::Command::Missing:
        return QStringLiteral("never");
    case ComparedStep::Command::Sent:
        return QStringLiteral("sent");
    case ComparedStep::Command::NotConnected:
        break;
    }
    return QStringLiteral("no link");
}

QJsonObject setPointObject(const ComparedSetPoint& setPoint)
{
    QJsonObject object = jsonObject({{"cell", cellName(setPoint.channel)}});
    if (setPoint.dueMs >= 0) {
        object.insert(QStringLiteral("dueSec"), inSeconds(setPoint.dueMs));
        object.insert(QStringLiteral("plannedDegC"), setPoint.plannedDegC);
    }
    if (setPoint.sentMs >= 0) {
        object.insert(QStringLiteral("sentSec"), inSeconds(setPoint.sentMs));
        object.insert(QStringLiteral("sentDegC"), setPoint.sentDegC);
    }
    return object;
}

QJsonArray differenceArray(const ComparedStep& step)
{
    QJsonArray array;
    for (int channel = 0; channel < Channels::count; ++channel) {
        const Difference& difference = step.differences.at(static_cast<size_t>(channel));
        if (difference.minutes > 0) {
            array.append(jsonObject({{"cell", cellName(channel)}, {"minutes", difference.minutes},
                {"meanDegC", difference.meanDegC()}, {"largestDegC", difference.largestDegC}}));
        }
    }
    return array;
}

QJsonObject stepObject(const ComparedStep& step)
{
    QJsonArray setPoints;
    for (const ComparedSetPoint& setPoint : step.setPoints) {
        setPoints.append(setPointObject(setPoint));
    }
    return jsonObject({{"step", step.row + 1}, {"pass", step.pass}, {"times", step.times},
        {"group", shortened(step.group)}, {"hold", step.isHold()}, {"seconds", step.plan.timeSec},
        {"startSec", inSeconds(step.startMs)}, {"endSec", inSeconds(step.endMs)},
        {"lateSec", inSeconds(step.lateMs)}, {"open", shutterLetters(step.plan.shutters)},
        {"command", commandWord(step.command)}, {"waitedSec", inSeconds(step.waitedMs)},
        {"pausedSec", inSeconds(step.pausedMs)}, {"refusedRamps", step.refusedRamps},
        {"setPoints", setPoints}, {"differences", differenceArray(step)}});
}

} // namespace

void writeComparedJson(const Comparison& comparison, const Sink& sink)
{
    const QJsonObject object = jsonObject({{"program", comparison.programName},
        {"journal", comparison.journalName}, {"run", comparison.run.number}, {"runs", comparison.runs},
        {"runAt", comparison.run.startedAt.toString(Qt::ISODateWithMs)}, {"end", endWord(comparison.run.end)},
        {"plannedSec", inSeconds(comparison.plan.endMs)}, {"playedSec", inSeconds(comparison.endMs)},
        {"differs", comparison.differs()}, {"worst", severityWord(worst(comparison.findings))},
        {"findings", findingArray(comparison.findings)}});
    sink("{\"growthcheck\":\"" NELVO_VERSION "\",\"comparison\":{" + membersOf(object) + ",\"steps\":[");
    for (int i = 0; i < comparison.steps.size(); ++i) {
        sink((i == 0 ? "\n" : ",\n") + bytesOf(stepObject(comparison.steps[i])));
    }
    sink("]}}\n");
}

} // namespace GrowthCheck
