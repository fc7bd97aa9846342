#include "growthcheck/output/timelinetext.h"

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/steptexts.h"
#include "growthcheck/output/textlines.h"
#include "shutter/shuttercommand.h"

#include <QSet>
#include <QStringList>

namespace GrowthCheck {

namespace {

constexpr int mostListed = 2000; // steps
constexpr int rampIndent = 6;
constexpr int layerIndent = 15;

class TimelineText
{
public:
    explicit TimelineText(const CheckedProgram& checkedProgram)
        : checked(checkedProgram)
        , runAt(checkedProgram.assumptions.runAt)
        , elapsedColumns(checkedProgram.timeline.holds > 0 ? 22 : 13)
    {
    }

    QString head() const
    {
        QString text = QLatin1Char('\n') + Words::tr("Timeline") + QLatin1Char('\n');
        text += QLatin1String("  ");
        if (runAt.isValid()) {
            text += padded(Words::tr("clock"), clockColumns);
        }
        text += rightAligned(Words::tr("elapsed"), elapsedColumns) + QLatin1Char(' ');
        text += rightAligned(Words::tr("step"), stepColumns) + QLatin1Char(' ');
        text += padded(Words::tr("pass"), passColumns) + QLatin1Char(' ');
        return text + Words::tr("open") + QLatin1Char('\n');
    }

    QString step(const PlannedStep& step)
    {
        QString head = lead(step.startMs, step.holdsBefore);
        head += rightAligned(QString::number(step.row + 1), stepColumns) + QLatin1Char(' ');
        head += padded(passText(step), passColumns) + QLatin1Char(' ');
        head += shutterLetters(step.plan.shutters) + QLatin1Char(' ');
        QStringList words{openNames(step.plan.shutters)};
        if (step.plan.kind == StepPlan::Kind::Hold) {
            words.append(Words::tr("+ operator"));
        }
        if (!step.group.isEmpty()) {
            words.append(quoted(step.group));
        }
        QString text = wrapped(head, words.join(QLatin1String("  ")), rampIndent);
        QSet<int> told;
        for (const PlannedRamp& ramp : step.ramps) {
            told.insert(ramp.channel);
            text += wrapped(
                QString(rampIndent, QLatin1Char(' ')), rampText(ramp, step.setPoints), rampIndent + 2);
        }
        return text + setPointsBut(step.setPoints, told);
    }

    QString fold(const Fold& fold)
    {
        const qint64 allMs = fold.passes * fold.periodMs;
        const qint64 holds = checked.timeline.holdsBefore(fold) + fold.passes * fold.holds;
        return wrapped(QStringLiteral("  "),
            Words::tr("... passes %1 to %2 alike: %3 x %4, until %5")
                .arg(QString::number(fold.firstPass), QString::number(fold.firstPass + fold.passes - 1),
                    QString::number(fold.passes), elapsedText(fold.periodMs, fold.holds),
                    elapsedText(fold.startMs + allMs, holds)),
            rampIndent);
    }

    QString end()
    {
        const Timeline& timeline = checked.timeline;
        const QString what = timeline.stop == Timeline::Stop::AtEnd ? Words::tr("end")
                                                                    : Words::tr("not looked at any further");
        QString text = lead(timeline.endMs, timeline.holds) + what + QLatin1Char('\n');
        return text + setPointsBut(timeline.tail, {});
    }

private:
    static constexpr int clockColumns = 9;
    static constexpr int stepColumns = 4;
    static constexpr int passColumns = 9;

    // Clock and elapsed time; on a new day its date in a line before.
    QString lead(qint64 ms, qint64 holds)
    {
        QString text;
        if (runAt.isValid()) {
            const QDateTime then = runAt.addMSecs(ms);
            if (then.date() != day) {
                day = then.date();
                text += QStringLiteral("  %1\n").arg(day.toString(QStringLiteral("yyyy-MM-dd")));
            }
            text += QLatin1String("  ") + padded(then.toString(QStringLiteral("HH:mm:ss")), clockColumns);
        } else {
            text += QLatin1String("  ");
        }
        return text + rightAligned(elapsedText(ms, holds), elapsedColumns) + QLatin1Char(' ');
    }

    static QString passText(const PlannedStep& step)
    {
        return step.times > 1 ? QStringLiteral("%1/%2").arg(step.pass).arg(step.times) : QString();
    }

    // Of ramps that began before, a line a channel.
    static QString setPointsBut(const QVector<PlannedSetPoint>& setPoints, const QSet<int>& told)
    {
        QString text;
        for (int channel = 0; channel < Channels::count; ++channel) {
            const QString values = setPointsText(setPoints, channel);
            if (!values.isEmpty() && !told.contains(channel)) {
                text += wrapped(QString(rampIndent, QLatin1Char(' ')),
                    Words::tr("%1 goes on: %2").arg(channelName(channel), values), rampIndent + 2);
            }
        }
        return text;
    }

    const CheckedProgram& checked;
    const QDateTime runAt;
    const int elapsedColumns;
    QDate day;
};

QString layerLine(const LayerBlock& block, const Layer& layer)
{
    const QString step = rightAligned(QString::number(layer.row + 1), 5);
    const QString passes = block.passes > 1 ? QStringLiteral("%1 x").arg(block.passes) : QString();
    const QString head = step + QLatin1Char(' ') + rightAligned(passes, 8) + QLatin1Char(' ');
    const QString line = wrapped(head,
        layer.shutters + QLatin1Char(' ') + rightAligned(secondsText(layer.timeMs), 12) + QLatin1String("  ")
            + padded(layer.material, 21) + QLatin1Char(' ')
            + rightAligned(layer.nm > 0.0 ? nmText(layer.nm) : QString(), 10),
        layerIndent);
    return layer.isHold ? line + wrapped(QString(), Words::tr("+ operator"), layerIndent) : line;
}

} // namespace

void writeTimeline(const CheckedProgram& checked, const Sink& sink)
{
    const Timeline& timeline = checked.timeline;
    TimelineText text(checked);
    sink(text.head().toUtf8());
    const int listed = qMin(timeline.steps.size(), mostListed);
    for (int i = 0; i < listed; ++i) {
        sink(text.step(timeline.steps[i]).toUtf8());
        if (const Fold* fold = timeline.foldAfter(i)) {
            sink(text.fold(*fold).toUtf8());
        }
    }
    if (listed < timeline.steps.size()) {
        sink(QStringLiteral("  %1\n")
                 .arg(Words::tr("... and %1 steps more; --csv has them all")
                          .arg(timeline.steps.size() - listed))
                 .toUtf8());
    }
    sink(text.end().toUtf8());
}

void writeLayers(const LayerTable& layers, const Sink& sink)
{
    QString text = QLatin1Char('\n') + Words::tr("Layers, from the substrate up") + QLatin1Char('\n');
    text += QStringLiteral(" %1 %2 %3 %4\n")
                .arg(rightAligned(Words::tr("step"), 4), padded(QString(), 8), padded(Words::tr("open"), 7),
                    rightAligned(Words::tr("seconds"), 12));
    for (const LayerBlock& block : layers.blocks) {
        for (const Layer& layer : block.layers) {
            text += layerLine(block, layer);
        }
        if (block.passes > 1 && block.nm() > 0.0) {
            text += wrapped(
                QStringLiteral("      "), block.text() + QLatin1String(": ") + nmText(block.nm()), 8);
        }
    }
    text += wrapped(QStringLiteral("  "),
        Words::tr("In all: %1; group III on average: %2").arg(nmText(layers.totalNm), layers.composition), 4);
    for (auto material = layers.nmByMaterial.begin(); material != layers.nmByMaterial.end(); ++material) {
        text += QStringLiteral("    %1 %2\n").arg(padded(material.key(), 22), nmText(material.value()));
    }
    sink(text.toUtf8());
}

} // namespace GrowthCheck
