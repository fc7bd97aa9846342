// The report of a run for a terminal.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/findingtext.h"
#include "growthcheck/output/output.h"
#include "growthcheck/output/reportparts.h"
#include "growthcheck/output/steptexts.h"
#include "growthcheck/output/textlines.h"
#include "shutter/shuttercommand.h"

#include <QStringList>

namespace GrowthCheck {

namespace {

constexpr int mostListed = 2000; // steps
constexpr int detailIndent = 6;
constexpr int elapsedColumns = 14;
constexpr int lateColumns = 7;
constexpr int stepColumns = 4;
constexpr int passColumns = 9;
constexpr int waitedColumns = 7;

QString hundredths(qint64 ms)
{
    return QString::number(static_cast<double>(ms) / 1000.0, 'f', 2);
}

QString head()
{
    QString text = QLatin1Char('\n') + Words::tr("Steps, as they were played") + QLatin1Char('\n');
    text += QLatin1String("  ") + rightAligned(Words::tr("elapsed"), elapsedColumns);
    text += rightAligned(Words::tr("late s"), lateColumns + 1);
    text += QLatin1Char(' ') + rightAligned(Words::tr("step"), stepColumns);
    text += QLatin1Char(' ') + padded(Words::tr("pass"), passColumns);
    text += QLatin1Char(' ') + padded(Words::tr("open"), Channels::shutterCount);
    return text + QLatin1Char(' ') + rightAligned(Words::tr("waited"), waitedColumns) + QLatin1Char('\n');
}

QString detailText(const QString& text)
{
    return text.isEmpty() ? text : wrapped(QString(detailIndent, QLatin1Char(' ')), text, detailIndent + 2);
}

QString setPointsText(const ComparedStep& step)
{
    QString text;
    for (int channel = 0; channel < Channels::count; ++channel) {
        const QString sent = sentText(step, channel);
        if (!sent.isEmpty()) {
            text += detailText(Words::tr("%1 set points: %2").arg(channelName(channel), sent));
        }
    }
    return text;
}

QString offText(const ComparedStep& step)
{
    const QString differences = differencesText(step);
    return differences.isEmpty() ? differences
                                 : Words::tr("off its set point by deg C (at the most): %1").arg(differences);
}

QString stepText(const ComparedStep& step)
{
    const QString pass = step.times > 1 ? QStringLiteral("%1/%2").arg(step.pass).arg(step.times) : QString();
    QString line = QLatin1String("  ") + rightAligned(elapsedText(step.startMs), elapsedColumns);
    line += QLatin1Char(' ') + rightAligned(hundredths(step.lateMs), lateColumns);
    line += QLatin1Char(' ') + rightAligned(QString::number(step.row + 1), stepColumns);
    line += QLatin1Char(' ') + padded(pass, passColumns);
    line += QLatin1Char(' ') + padded(shutterLetters(step.plan.shutters), Channels::shutterCount);
    line += QLatin1Char(' ') + rightAligned(commandText(step), waitedColumns);
    QStringList words;
    if (step.isHold()) {
        words.append(Words::tr("held %1 s").arg(hundredths(step.pausedMs)));
    } else if (step.pausedMs > 0) {
        words.append(Words::tr("paused %1 s").arg(hundredths(step.pausedMs)));
    }
    if (!step.group.isEmpty()) {
        words.append(quoted(step.group));
    }
    return wrapped(line + QLatin1String("  "), words.join(QLatin1String("  ")), detailIndent)
        + setPointsText(step) + detailText(offText(step));
}

} // namespace

void writeComparedText(const Comparison& comparison, const Sink& sink)
{
    sink(comparison.programName.toUtf8() + '\n');
    for (const QString& line : summaryLines(comparison)) {
        sink(wrapped(QStringLiteral("  "), line, 2).toUtf8());
    }
    sink(findingsText(comparison.findings).toUtf8());
    sink(head().toUtf8());
    const int listed = qMin(comparison.steps.size(), mostListed);
    for (int i = 0; i < listed; ++i) {
        sink(stepText(comparison.steps[i]).toUtf8());
    }
    if (listed < comparison.steps.size()) {
        sink(wrapped(QStringLiteral("  "),
            Words::tr("... and %1 steps more; --csv has them all").arg(comparison.steps.size() - listed), 4)
                 .toUtf8());
    }
}

} // namespace GrowthCheck
