// All that was found, for programs.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/jsonparts.h"
#include "growthcheck/output/output.h"
#include "shutter/shuttercommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace GrowthCheck {

namespace {

QJsonObject rampObject(const PlannedRamp& ramp)
{
    QJsonObject object = jsonObject({{"cell", cellName(ramp.channel)}, {"fromDegC", ramp.plan.currentDegC},
        {"toDegC", ramp.plan.targetDegC}, {"minutes", ramp.plan.durationMin}});
    const bool isRefused = ramp.end == PlannedRamp::End::Refused;
    object.insert(QStringLiteral("refused"), isRefused);
    object.insert(QStringLiteral("startIsKnown"),
        ramp.from == PlannedRamp::From::Known || ramp.from == PlannedRamp::From::Lagging);
    if (!isRefused) {
        object.insert(QStringLiteral("degCPerMinute"), ramp.plan.rate);
    }
    return object;
}

// One by one: there may be tens of thousands.
void writeSetPoints(const QVector<PlannedSetPoint>& setPoints, const Sink& sink)
{
    sink("[");
    for (int i = 0; i < setPoints.size(); ++i) {
        const PlannedSetPoint& setPoint = setPoints[i];
        sink((i == 0 ? "" : ",")
            + bytesOf(jsonObject({{"cell", cellName(setPoint.channel)}, {"dueSec", inSeconds(setPoint.dueMs)},
                {"degC", setPoint.degC}, {"sure", setPoint.isSure}})));
    }
    sink("]");
}

QJsonObject stepObject(const CheckedProgram& checked, const PlannedStep& step)
{
    QJsonObject object = jsonObject(
        {{"step", step.row + 1}, {"pass", step.pass}, {"times", step.times}, {"group", shortened(step.group)},
            {"hold", step.plan.kind == StepPlan::Kind::Hold}, {"seconds", step.plan.timeSec},
            {"startSec", inSeconds(step.startMs)}, {"endSec", inSeconds(step.endMs)},
            {"operatorWaits", step.holdsBefore}, {"open", shutterLetters(step.plan.shutters)}});
    const QDateTime& runAt = checked.assumptions.runAt;
    if (runAt.isValid()) {
        // The toolkit's ISO form ends with the year 9999.
        object.insert(QStringLiteral("clock"),
            runAt.addMSecs(step.startMs).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")));
    }
    QJsonArray ramps;
    for (const PlannedRamp& ramp : step.ramps) {
        ramps.append(rampObject(ramp));
    }
    object.insert(QStringLiteral("ramps"), ramps);
    return object;
}

QJsonObject foldObject(const Fold& fold)
{
    return jsonObject(
        {{"behindStart", fold.lastStep}, {"likeStarts", QJsonArray({fold.firstStep, fold.lastStep})},
            {"firstPass", fold.firstPass}, {"passes", fold.passes}, {"startSec", inSeconds(fold.startMs)},
            {"periodSec", inSeconds(fold.periodMs)}});
}

QJsonObject layerObject(const LayerTable& layers)
{
    QJsonArray blocks;
    for (const LayerBlock& block : layers.blocks) {
        QJsonArray rows;
        for (const Layer& layer : block.layers) {
            rows.append(jsonObject({{"step", layer.row + 1}, {"seconds", inSeconds(layer.timeMs)},
                {"material", layer.material}, {"nm", layer.nm}}));
        }
        blocks.append(jsonObject({{"group", shortened(block.group)}, {"passes", block.passes},
            {"nm", block.nm()}, {"text", block.text()}, {"layers", rows}}));
    }
    return jsonObject({{"totalNm", layers.totalNm}, {"composition", layers.composition}, {"blocks", blocks}});
}

QString stopWord(Timeline::Stop stop)
{
    switch (stop) {
    case Timeline::Stop::AtEnd:
        return QStringLiteral("end");
    case Timeline::Stop::TooLong:
        return QStringLiteral("too long");
    case Timeline::Stop::TooMuch:
        break;
    }
    return QStringLiteral("too much");
}

void writeProgram(const CheckedProgram& checked, const Sink& sink)
{
    const Timeline& timeline = checked.timeline;
    QJsonArray folds;
    for (const Fold& fold : timeline.folds) {
        folds.append(foldObject(fold));
    }
    QJsonObject object
        = jsonObject({{"program", checked.program.fileName}, {"steps", checked.program.steps.size()},
            {"starts", timeline.starts}, {"operatorWaits", timeline.holds},
            {"shownTotalSec", timeline.shownTotalSec}, {"playedSec", inSeconds(timeline.endMs)},
            {"stop", stopWord(timeline.stop)}, {"worst", severityWord(worst(checked.findings))},
            {"findings", findingArray(checked.findings)}, {"folds", folds}});
    if (checked.layers) {
        object.insert(QStringLiteral("layers"), layerObject(*checked.layers));
    }
    sink('{' + membersOf(object) + ",\"setPointsBehindTheEnd\":");
    writeSetPoints(timeline.tail, sink);
    sink(",\"timeline\":[");
    for (int i = 0; i < timeline.steps.size(); ++i) {
        const PlannedStep& step = timeline.steps[i];
        sink((i == 0 ? "\n{" : ",\n{") + membersOf(stepObject(checked, step)) + ",\"setPoints\":");
        writeSetPoints(step.setPoints, sink);
        sink("}");
    }
    sink("]}");
}

} // namespace

void writeJson(const QVector<CheckedProgram>& checked, const Sink& sink)
{
    sink("{\"growthcheck\":\"" NELVO_VERSION "\",\"programs\":[");
    for (int i = 0; i < checked.size(); ++i) {
        sink(i == 0 ? "\n" : ",\n");
        writeProgram(checked[i], sink);
    }
    sink("\n]}\n");
}

} // namespace GrowthCheck
