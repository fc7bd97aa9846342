#include "growthcheck/output/steptexts.h"

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

constexpr int mostSetPoints = 24; // of a ramp
constexpr int shownFirst = 6; // of those of a longer one

QString degrees(double degC)
{
    return QString::number(degC, 'f', 1);
}

QString hundredths(qint64 ms)
{
    return QString::number(static_cast<double>(ms) / 1000.0, 'f', 2);
}

QString setPointText(const ComparedSetPoint& setPoint)
{
    QString sent = QString::number(setPoint.sentDegC, 'f', 1);
    const QString planned = QString::number(setPoint.plannedDegC, 'f', 1);
    if (setPoint.sentMs < 0) {
        return Words::tr("%1 not sent").arg(planned);
    }
    if (setPoint.dueMs < 0 || sent == planned) {
        return sent;
    }
    return Words::tr("%1 for %2").arg(sent, planned);
}

} // namespace

QString openNames(const QVector<bool>& shutters)
{
    QStringList names;
    for (int shutter = 0; shutter < shutters.size(); ++shutter) {
        if (shutters[shutter]) {
            names.append(channelName(shutter));
        }
    }
    return names.join(QLatin1Char(' '));
}

QString setPointsText(const QVector<PlannedSetPoint>& setPoints, int channel)
{
    QStringList values;
    for (const PlannedSetPoint& setPoint : setPoints) {
        if (setPoint.channel == channel) {
            values.append(degrees(setPoint.degC) + QLatin1String(setPoint.isSure ? "" : "?"));
        }
    }
    if (values.size() <= mostSetPoints) {
        return values.join(QLatin1Char(' '));
    }
    return Words::tr("%1 ... %2 (%3 set points)")
        .arg(values.mid(0, shownFirst).join(QLatin1Char(' ')), values.last(), QString::number(values.size()));
}

QString rampText(const PlannedRamp& ramp, const QVector<PlannedSetPoint>& setPoints)
{
    const QString start = QString::number(ramp.plan.currentDegC, 'g', 6);
    const QString from
        = ramp.from == PlannedRamp::From::NotTold ? Words::tr("%1 (not told)").arg(start) : start;
    const QString to = QString::number(ramp.plan.targetDegC, 'g', 6);
    // From a start that nobody told it may be taken as well.
    const QString refused
        = Words::tr("refused") + QLatin1String(ramp.from == PlannedRamp::From::NotTold ? "?" : "");
    const QString sent
        = ramp.end == PlannedRamp::End::Refused ? refused : setPointsText(setPoints, ramp.channel);
    return Words::tr("%1 %2 to %3 deg C in %4 min: %5")
        .arg(channelName(ramp.channel), from, to, ramp.minutes, sent);
}

QString plannedText(const PlannedStep& step)
{
    QStringList texts;
    for (const PlannedRamp& ramp : step.ramps) {
        texts.append(rampText(ramp, step.setPoints));
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        const bool isNew = std::any_of(step.ramps.begin(), step.ramps.end(),
            [channel](const PlannedRamp& ramp) { return ramp.channel == channel; });
        const QString values = isNew ? QString() : setPointsText(step.setPoints, channel);
        if (!values.isEmpty()) {
            texts.append(Words::tr("%1 goes on: %2").arg(channelName(channel), values));
        }
    }
    return texts.join(QLatin1String("; "));
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

QString sentText(const ComparedStep& step, int channel)
{
    QStringList values;
    for (const ComparedSetPoint& setPoint : step.setPoints) {
        if (setPoint.channel == channel) {
            values.append(setPointText(setPoint));
        }
    }
    return values.join(QLatin1Char(' '));
}

QString sentText(const ComparedStep& step)
{
    QStringList texts;
    for (int channel = 0; channel < Channels::count; ++channel) {
        const QString sent = sentText(step, channel);
        if (!sent.isEmpty()) {
            texts.append(channelName(channel) + QLatin1Char(' ') + sent);
        }
    }
    return texts.join(QLatin1String("; "));
}

QString differencesText(const ComparedStep& step)
{
    QStringList texts;
    for (int channel = 0; channel < Channels::count; ++channel) {
        const Difference& difference = step.differences.at(static_cast<size_t>(channel));
        if (difference.minutes > 0) {
            texts.append(QStringLiteral("%1 %2 (%3)")
                             .arg(channelName(channel), QString::number(difference.meanDegC(), 'f', 1),
                                 QString::number(difference.largestDegC, 'f', 1)));
        }
    }
    return texts.join(QLatin1String(", "));
}

} // namespace GrowthCheck
