// The report of a run for a terminal.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/findingtext.h"
#include "growthcheck/output/output.h"
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

QString summary(const Comparison& comparison)
{
    const RecordedRun& run = comparison.run;
    QString text = wrapped(QString(),
        Words::tr("%1, run %2 of %3 in %4")
            .arg(comparison.programName, QString::number(run.number), QString::number(comparison.runs),
                comparison.journalName),
        2);
    text += wrapped(QStringLiteral("  "),
        Words::tr("Run at %1; %2 after %3")
            .arg(run.startedAt.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), endName(run.end),
                elapsedText(comparison.endMs)),
        2);
    qint64 lateMs = 0;
    qint64 waitedMs = 0;
    for (const ComparedStep& step : comparison.steps) {
        lateMs = qMax(lateMs, step.lateMs);
        waitedMs = qMax(waitedMs, step.waitedMs);
    }
    return text
        + wrapped(QStringLiteral("  "),
            Words::tr("planned: %1; starts of steps: %2; latest by %3 s; shutters waited %4 s at the most")
                .arg(elapsedText(comparison.plan.endMs, comparison.plan.holds),
                    QString::number(comparison.steps.size()), hundredths(lateMs), hundredths(waitedMs)),
            2);
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

QString commandText(const ComparedStep& step)
{
    switch (step.command) {
    case ComparedStep::Command::Sent:
        return hundredths(step.waitedMs);
    case ComparedStep::Command::NotConnected:
        return Words::tr("no link");
    case ComparedStep::Command::Missing:
        break;
    }
    return Words::tr("never");
}

QString setPointText(const ComparedSetPoint& setPoint)
{
    const QString sent = QString::number(setPoint.sentDegC, 'f', 1);
    const QString planned = QString::number(setPoint.plannedDegC, 'f', 1);
    if (setPoint.sentMs < 0) {
        return Words::tr("%1 not sent").arg(planned);
    }
    if (setPoint.dueMs < 0 || sent == planned) {
        return sent;
    }
    return Words::tr("%1 for %2").arg(sent, planned);
}

QString setPointsText(const ComparedStep& step)
{
    QString text;
    for (int channel = 0; channel < Channels::count; ++channel) {
        QStringList values;
        for (const ComparedSetPoint& setPoint : step.setPoints) {
            if (setPoint.channel == channel) {
                values.append(setPointText(setPoint));
            }
        }
        if (!values.isEmpty()) {
            text += wrapped(QString(detailIndent, QLatin1Char(' ')),
                Words::tr("%1 set points: %2").arg(channelName(channel), values.join(QLatin1Char(' '))),
                detailIndent + 2);
        }
    }
    return text;
}

QString differencesText(const ComparedStep& step)
{
    QStringList texts;
    for (int channel = 0; channel < Channels::count; ++channel) {
        const Difference& difference = step.differences.at(static_cast<size_t>(channel));
        if (difference.minutes > 0) {
            texts.append(Words::tr("%1 %2 (%3 at the most)")
                             .arg(channelName(channel), QString::number(difference.meanDegC(), 'f', 1),
                                 QString::number(difference.largestDegC, 'f', 1)));
        }
    }
    return texts.isEmpty()
        ? QString()
        : wrapped(QString(detailIndent, QLatin1Char(' ')),
            Words::tr("off its set point by deg C: %1").arg(texts.join(QLatin1String(", "))),
            detailIndent + 2);
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
        + setPointsText(step) + differencesText(step);
}

} // namespace

void writeComparedText(const Comparison& comparison, const Sink& sink)
{
    sink(summary(comparison).toUtf8());
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
