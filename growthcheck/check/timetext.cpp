#include "growthcheck/check/timetext.h"

#include "growthcheck/check/words.h"

#include <cmath>

namespace GrowthCheck {

namespace {

constexpr qint64 secPerDay = qint64{24} * 3600;
constexpr double leastRoundedSec = 1e15; // more than is ever played

} // namespace

QString elapsedText(qint64 ms)
{
    const qint64 hundredths = ms / 10;
    const qint64 sec = hundredths / 100;
    const auto inDay = static_cast<int>(sec % secPerDay);
    const QString time = QString::asprintf(
        "%d:%02d:%02d.%02d", inDay / 3600, inDay / 60 % 60, inDay % 60, static_cast<int>(hundredths % 100));
    const qint64 days = sec / secPerDay;
    return days == 0 ? time : Words::tr("%1 d %2").arg(QString::number(days), time);
}

QString elapsedText(qint64 ms, qint64 holds)
{
    const QString time = elapsedText(ms);
    return holds == 0 ? time : Words::tr("%1 + operator").arg(time);
}

QString clockText(const QDateTime& start, qint64 ms)
{
    if (!start.isValid()) {
        return {};
    }
    const QDateTime then = start.addMSecs(ms);
    const QString time = then.toString(QStringLiteral("HH:mm:ss"));
    return then.date() == start.date() ? time : then.toString(QStringLiteral("yyyy-MM-dd ")) + time;
}

QString endText(const QDateTime& start, qint64 ms)
{
    const QDateTime then = start.addMSecs(ms);
    const QString time = then.toString(QStringLiteral("HH:mm:ss"));
    const qint64 days = start.date().daysTo(then.date());
    if (days == 0) {
        return Words::tr("today, %1").arg(time);
    }
    return days == 1 ? Words::tr("tomorrow, %1").arg(time) : clockText(start, ms);
}

QString totalText(double sec)
{
    if (!std::isfinite(sec)) {
        return Words::tr("more than 1e+308");
    }
    return sec < leastRoundedSec ? QString::number(sec, 'f', 1) : QString::number(sec, 'g', 6);
}

QString secondsText(qint64 ms)
{
    return QString::number(static_cast<double>(ms) / 1000.0, 'f', 3);
}

} // namespace GrowthCheck
