#include "growthcheck/page/pagetables.h"

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/findingtext.h"
#include "growthcheck/output/steptexts.h"
#include "growthcheck/page/markup.h"
#include "shutter/shuttercommand.h"

namespace GrowthCheck {

namespace {

using namespace Markup;

constexpr int mostRows = 2000;

QByteArray heading(const QString& text)
{
    return element("h2", escaped(text));
}

// A table that scrolls by itself where the page is narrow.
QByteArray table(const QStringList& head, const QByteArray& rows, const char* name)
{
    const QByteArray content
        = element("thead", row(head, "th")) + '\n' + element("tbody", '\n' + rows) + '\n';
    return element("div", element("table", content, QByteArray("class=\"") + name + '"'), "class=\"wide\"")
        + '\n';
}

QByteArray more(int count)
{
    return count > 0
        ? element("p", escaped(Words::tr("... and %1 steps more; --csv has them all").arg(count)))
        : QByteArray();
}

QString passText(int pass, int times)
{
    return times > 1 ? QStringLiteral("%1/%2").arg(pass).arg(times) : QString();
}

QString openText(const StepPlan& plan)
{
    const QString names = openNames(plan.shutters);
    return plan.kind == StepPlan::Kind::Hold ? names + QLatin1String("  ") + Words::tr("+ operator") : names;
}

QByteArray foldRow(const Fold& fold, int columns)
{
    const QString text
        = Words::tr("passes %1 to %2 alike: %3 x %4")
              .arg(QString::number(fold.firstPass), QString::number(fold.firstPass + fold.passes - 1),
                  QString::number(fold.passes), elapsedText(fold.periodMs, fold.holds));
    return element("tr", element("td", escaped(text), "colspan=\"" + QByteArray::number(columns) + '"'),
               "class=\"fold\"")
        + '\n';
}

} // namespace

QByteArray findingsTable(const Findings& findings)
{
    QByteArray rows;
    for (const Finding& finding : findings) {
        const QString times = finding.count > 1 ? Words::tr(" (%1 times)").arg(finding.count) : QString();
        rows += row({severityName(finding.kind.severity), QLatin1String(finding.kind.id), placeOf(finding),
                        finding.text + times},
            "td", "class=\"" + severityWord(finding.kind.severity).toLatin1() + '"');
    }
    const QByteArray title = heading(Words::tr("Findings"));
    if (rows.isEmpty()) {
        return title + element("p", escaped(Words::tr("Nothing was found.")));
    }
    return title
        + table(
            {Words::tr("weight"), Words::tr("what"), Words::tr("where"), Words::tr("why")}, rows, "findings");
}

QByteArray timelineTable(const CheckedProgram& checked)
{
    const Timeline& timeline = checked.timeline;
    const QDateTime& runAt = checked.assumptions.runAt;
    QStringList head{Words::tr("elapsed"), Words::tr("step"), Words::tr("pass"), Words::tr("group"),
        Words::tr("open"), Words::tr("set points, deg C")};
    if (runAt.isValid()) {
        head.prepend(Words::tr("clock"));
    }
    const int drawn = qMin(timeline.steps.size(), mostRows);
    QByteArray rows;
    for (int index = 0; index < drawn; ++index) {
        const PlannedStep& step = timeline.steps[index];
        QStringList texts{elapsedText(step.startMs, step.holdsBefore), QString::number(step.row + 1),
            passText(step.pass, step.times), shortened(step.group), openText(step.plan), plannedText(step)};
        if (runAt.isValid()) {
            texts.prepend(clockText(runAt, step.startMs));
        }
        rows += row(texts);
        if (const Fold* fold = timeline.foldAfter(index)) {
            rows += foldRow(*fold, head.size());
        }
    }
    return heading(Words::tr("Timeline")) + table(head, rows, "steps") + more(timeline.steps.size() - drawn);
}

QByteArray layersTable(const LayerTable& layers)
{
    QByteArray rows;
    for (const LayerBlock& block : layers.blocks) {
        for (const Layer& layer : block.layers) {
            rows += row({QString::number(layer.row + 1), shortened(block.group),
                block.passes > 1 ? QStringLiteral("%1 x").arg(block.passes) : QString(),
                secondsText(layer.timeMs), layer.isHold ? Words::tr("+ operator") : layer.material,
                layer.nm > 0.0 ? nmText(layer.nm) : QString()});
        }
        if (block.passes > 1 && block.nm() > 0.0) {
            const QString text = block.text() + QLatin1String(": ") + nmText(block.nm());
            rows += element("tr", element("td", escaped(text), "colspan=\"6\""), "class=\"fold\"") + '\n';
        }
    }
    QByteArray sums;
    for (auto material = layers.nmByMaterial.begin(); material != layers.nmByMaterial.end(); ++material) {
        sums += row({material.key(), nmText(material.value())});
    }
    sums += row(
        {Words::tr("in all; group III on average %1").arg(layers.composition), nmText(layers.totalNm)});
    return heading(Words::tr("Layers, from the substrate up"))
        + table({Words::tr("step"), Words::tr("group"), Words::tr("times"), Words::tr("seconds"),
                    Words::tr("material"), Words::tr("thickness")},
            rows, "layers")
        + table({Words::tr("material"), Words::tr("thickness")}, sums, "sums");
}

QByteArray comparedTable(const Comparison& comparison)
{
    const int drawn = qMin(comparison.steps.size(), mostRows);
    QByteArray rows;
    for (int index = 0; index < drawn; ++index) {
        const ComparedStep& step = comparison.steps[index];
        rows += row({elapsedText(step.startMs), secondsText(step.lateMs), QString::number(step.row + 1),
            passText(step.pass, step.times), shortened(step.group), openText(step.plan), commandText(step),
            step.pausedMs > 0 ? secondsText(step.pausedMs) : QString(), sentText(step),
            differencesText(step)});
    }
    return heading(Words::tr("Steps, as they were played"))
        + table({Words::tr("elapsed"), Words::tr("late s"), Words::tr("step"), Words::tr("pass"),
                    Words::tr("group"), Words::tr("open"), Words::tr("waited"), Words::tr("held s"),
                    Words::tr("set points, deg C"), Words::tr("off its set point by deg C (at the most)")},
            rows, "steps")
        + more(comparison.steps.size() - drawn);
}

} // namespace GrowthCheck
