#include "growthcheck/comparison/followedlink.h"

#include "base/number.h"
#include "growthcheck/check/words.h"
#include "growthcheck/comparison/runkinds.h"
#include "temperature/controllermessage.h"

#include <algorithm>
#include <cmath>

namespace GrowthCheck {

namespace {

// A ramp's set point runs a minute ahead of what is measured: by no more than that a cell may be off.
constexpr double worthTellingDegC = 60.0;

using Texts = std::array<std::optional<double>, Channels::count>;

Texts numbersIn(const QString& texts)
{
    Texts numbers;
    const QStringList words = texts.split(QLatin1Char(' '));
    for (int channel = 0; channel < qMin(Channels::count, words.size()); ++channel) {
        numbers.at(static_cast<size_t>(channel)) = readNumber(words[channel]);
    }
    return numbers;
}

// Whether a line that came is one that a controller sends: a reading or "ER", or the adapter's own.
bool isWhole(const QString& line)
{
    const QByteArray bytes = line.simplified().toLatin1();
    if (bytes.size() != ControllerMessage::replyLength) {
        constexpr int longestOwn = 3; // "OK", "ER", or what the adapter answers a query with
        return bytes.size() <= longestOwn;
    }
    constexpr int valueStart = 3;
    return bytes[0] == '0'
        && readNumber(bytes.mid(valueStart, ControllerMessage::replyLength - valueStart - 1));
}

QString inSeconds(const QString& ms)
{
    return QString::number(ms.toDouble() / 1000.0, 'f', 1);
}

} // namespace

void FollowedLink::take(const RecordedEvent& event)
{
    const QString& kind = event.line.kind;
    if (kind == QLatin1String("reading-failed")) {
        const bool isSilent = event.value("why") == QLatin1String("silence");
        tell(RunKinds::readingFailed,
            isSilent ? Words::tr("The controller did not answer.")
                     : Words::tr("The controller answered with an error."),
            event.channel());
    } else if (kind == QLatin1String("lost") || kind == QLatin1String("refused")) {
        tell(RunKinds::linkLost,
            Words::tr(
                "The link to the adapter was lost: nothing is sent until the station is started again."));
    } else if (kind == QLatin1String("bus-held")) {
        tell(RunKinds::busHeld,
            Words::tr("A reply was awaited for more than a second; nothing is sent meanwhile."));
    } else if (kind == QLatin1String("readings-shifted")) {
        tell(RunKinds::readingsShifted,
            Words::tr(
                "Another controller's reading came: temperatures stand under wrong channels from here on."));
    } else if (kind == QLatin1String("unasked-line")) {
        tell(RunKinds::unaskedLine,
            Words::tr(
                "A line came although none was awaited, such as %1: readings may stand under wrong channels.")
                .arg(quoted(event.value("line"))));
    } else if (kind == QLatin1String("received")) {
        takeReceived(event.value("bytes"));
    } else if (kind == QLatin1String("control")) {
        if (event.value("is") == QLatin1String("off")) {
            tell(RunKinds::controlOff,
                Words::tr("The temperature control was turned off: no set point is sent."));
        }
    } else if (kind == QLatin1String("in-use")) {
        tell(RunKinds::inUse, Words::tr("The channel was taken into use or out of it."), event.channel());
    } else if (kind == QLatin1String("slept")) {
        tell(RunKinds::slept, Words::tr("The PC slept for %1 s.").arg(inSeconds(event.value("ms"))));
    } else if (kind == QLatin1String("late-tick")) {
        tell(RunKinds::lateTick,
            Words::tr("The station was held up for %1 s.").arg(inSeconds(event.value("ms"))));
    } else if (kind == QLatin1String("clock-stepped")) {
        tell(RunKinds::clockStepped,
            Words::tr("The PC's clock was set by %1 s; no step moves by it.")
                .arg(inSeconds(event.value("ms"))));
    } else if (kind == QLatin1String("lost-lines")) {
        tell(
            RunKinds::linesLost, Words::tr("%1 lines of the journal had no room.").arg(event.value("count")));
    }
}

// Only a journal of every byte tells of these.
void FollowedLink::takeReceived(const QString& bytes)
{
    QString text = piece + bytes;
    const int lineEnd = text.lastIndexOf(QLatin1Char('\n'));
    const QStringList lines = text.left(lineEnd + 1).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    piece = text.mid(lineEnd + 1);
    if (!piece.isEmpty()) {
        tell(RunKinds::replySplit, Words::tr("A reply came in pieces."));
    }
    for (const QString& line : lines) {
        if (!isWhole(line)) {
            tell(RunKinds::replyGarbled,
                Words::tr("A reply was no reading: %1.").arg(quoted(line.simplified())));
        }
    }
}

void FollowedLink::takeMinute(const RecordedEvent& event)
{
    MeasuredMinute minute;
    minute.ms = event.ms;
    minute.degC = numbersIn(event.value("measured"));
    minute.setPointDegC = numbersIn(event.value("set-points"));
    comparison.minutes.append(minute);
    if (comparison.steps.isEmpty()) {
        return;
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        const auto at = static_cast<size_t>(channel);
        const bool isKnown = minute.degC.at(at) && minute.setPointDegC.at(at);
        if (!isKnown || *minute.setPointDegC.at(at) == 0.0) {
            continue; // the panel shows 0 where no set point was sent
        }
        const double degC = *minute.degC.at(at) - *minute.setPointDegC.at(at);
        comparison.steps.last().differences.at(at).add(degC);
        if (std::abs(degC) > worthTellingDegC) {
            tell(RunKinds::temperatureOff,
                Words::tr("%1 deg C were measured where the set point was %2.")
                    .arg(QString::number(*minute.degC.at(at), 'g', 6),
                        QString::number(*minute.setPointDegC.at(at), 'g', 6)),
                channel);
        }
    }
}

void FollowedLink::tell(const Kind& kind, const QString& text, int channel)
{
    Finding finding;
    finding.kind = kind;
    finding.text = text;
    finding.channel = channel;
    if (!comparison.steps.isEmpty()) {
        const ComparedStep& step = comparison.steps.constLast();
        finding.step = step.row + 1;
        finding.pass = step.times > 1 ? step.pass : 0;
    }
    addOnce(comparison.findings, finding);
}

} // namespace GrowthCheck
