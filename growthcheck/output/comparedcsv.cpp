// A run, held against its program, as a table with an event a line.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/csvfields.h"
#include "growthcheck/output/output.h"
#include "shutter/shuttercommand.h"

#include <QStringList>

namespace GrowthCheck {

namespace {

QString degrees(double degC)
{
    return QString::number(degC, 'f', 1);
}

QString secondsOrNothing(qint64 ms)
{
    return ms < 0 ? QString() : secondsText(ms);
}

void write(const Sink& sink, const QStringList& fields)
{
    sink(fields.join(QLatin1Char(',')).toUtf8() + '\n');
}

void writeStep(const ComparedStep& step, const Sink& sink)
{
    const QString row = QString::number(step.row + 1);
    const QString pass = QString::number(step.pass);
    write(sink,
        {step.isHold() ? QStringLiteral("hold") : QStringLiteral("step"), row, pass,
            inQuotes(shortened(step.group)), secondsText(step.startMs - step.lateMs),
            secondsText(step.startMs), secondsText(step.pausedMs), QString(), QString(), QString()});
    write(sink,
        {QStringLiteral("shutters"), row, pass, shutterLetters(step.plan.shutters), secondsText(step.startMs),
            secondsOrNothing(step.command == ComparedStep::Command::Sent ? step.commandMs : -1), QString(),
            QString(), QString(), QString()});
    for (const ComparedSetPoint& setPoint : step.setPoints) {
        const bool isPlanned = setPoint.dueMs >= 0;
        const bool isSent = setPoint.sentMs >= 0;
        write(sink,
            {QStringLiteral("set-point"), row, pass, QString(), secondsOrNothing(setPoint.dueMs),
                secondsOrNothing(setPoint.sentMs), QString(),
                QLatin1String(Channels::list[setPoint.channel].name),
                isPlanned ? degrees(setPoint.plannedDegC) : QString(),
                isSent ? degrees(setPoint.sentDegC) : QString()});
    }
}

void writeMinute(const MeasuredMinute& minute, const Sink& sink)
{
    for (int channel = 0; channel < Channels::count; ++channel) {
        const auto at = static_cast<size_t>(channel);
        if (minute.degC.at(at)) {
            const std::optional<double>& setPoint = minute.setPointDegC.at(at);
            write(sink,
                {QStringLiteral("measured"), QString(), QString(), QString(), QString(),
                    secondsText(minute.ms), QString(), QLatin1String(Channels::list[channel].name),
                    setPoint ? degrees(*setPoint) : QString(), degrees(*minute.degC.at(at))});
        }
    }
}

} // namespace

void writeComparedCsv(const Comparison& comparison, const Sink& sink)
{
    sink("event,step,pass,what,planned-s,actual-s,paused-s,cell,planned-deg-c,actual-deg-c\n");
    for (const ComparedStep& step : comparison.steps) {
        writeStep(step, sink);
    }
    for (const MeasuredMinute& minute : comparison.minutes) {
        writeMinute(minute, sink);
    }
}

} // namespace GrowthCheck
