#include "growthcheck/comparison/followedramps.h"

#include "base/number.h"
#include "growthcheck/check/words.h"
#include "growthcheck/comparison/runkinds.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

// How much later than due a set point is worth a word: after a controller that does not answer, which is
// given up after 3 s, and a round of the others.
constexpr qint64 lateMs = 4000;
// How long a set point that did not go out may have waited when its ramp ends.
constexpr qint64 patienceMs = 4000;

QString shown(double degC)
{
    return QString::number(degC, 'g', 6);
}

double numberIn(const RecordedEvent& event, const char* name)
{
    return readNumber(event.value(name)).value_or(0.0);
}

} // namespace

void FollowedRamps::end(qint64 ms)
{
    if (comparison.steps.isEmpty()) {
        return;
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        lookForMissing(channel, ms);
    }
}

void FollowedRamps::takeRamp(const RecordedEvent& event)
{
    const int channel = event.channel();
    if (channel < 0) {
        return;
    }
    Cell& cell = cells.at(static_cast<size_t>(channel));
    const std::optional<StepRamp> planned = takeFromAwaited(channel);
    cell.isPlanned = planned.has_value();
    // The journal has six digits of it.
    cell.targetDegC = planned ? readNumber(planned->targetDegC).value_or(0.0) : numberIn(event, "to");
    cell.ramp.start(Ramp::plan(numberIn(event, "from"), cell.targetDegC, numberIn(event, "minutes"),
                        Channels::list[channel].riseLimit),
        event.ms);
    if (!cell.isPlanned) {
        tell(RunKinds::rampByHand, step(), channel,
            Words::tr("A ramp to %1 deg C in %2 min was begun by hand.")
                .arg(shown(cell.targetDegC), event.value("minutes")));
    }
}

void FollowedRamps::takeRefusal(const RecordedEvent& event)
{
    const int channel = event.channel();
    if (channel < 0 || !takeFromAwaited(channel)) {
        return; // one that was tried by hand changed nothing
    }
    cells.at(static_cast<size_t>(channel)).ramp.cellRunning = false;
    ++step().refusedRamps;
    tell(RunKinds::rampRefused, step(), channel,
        Words::tr("The ramp from %1 to %2 deg C in %3 min was refused, and the program went on without it.")
            .arg(event.value("from"), event.value("to"), event.value("minutes")));
}

void FollowedRamps::takeSetPoint(const RecordedEvent& event)
{
    const int channel = event.channel();
    if (channel < 0) {
        return;
    }
    Cell& cell = cells.at(static_cast<size_t>(channel));
    ComparedSetPoint setPoint;
    const bool isSent = event.value("link") != QLatin1String("down");
    setPoint.channel = channel;
    if (isSent) {
        setPoint.sentMs = event.ms;
        setPoint.sentDegC = numberIn(event, "deg-c");
    }
    if (cell.ramp.cellRunning) {
        setPoint.dueMs = cell.ramp.rampNextMs;
        setPoint.plannedDegC = cell.ramp.step(cell.targetDegC);
    }
    step().setPoints.append(setPoint);
    if (setPoint.dueMs < 0) {
        // A ramp that began before the program goes on: nobody planned it.
        return;
    }
    if (!isSent) {
        tell(RunKinds::setPointMissing, step(), channel,
            Words::tr("The set point %1 deg C was not sent: the link to the adapter was down.")
                .arg(shown(setPoint.plannedDegC)));
        return;
    }
    if (shown(setPoint.sentDegC) != shown(setPoint.plannedDegC)) {
        tell(RunKinds::setPointDiffers, step(), channel,
            Words::tr("%1 deg C was sent where %2 was due.")
                .arg(shown(setPoint.sentDegC), shown(setPoint.plannedDegC)));
    }
    if (setPoint.sentMs - setPoint.dueMs > lateMs) {
        tell(RunKinds::setPointLate, step(), channel,
            Words::tr("The set point %1 deg C was sent %2 s after it was due.")
                .arg(shown(setPoint.sentDegC))
                .arg(static_cast<double>(setPoint.sentMs - setPoint.dueMs) / 1000.0, 0, 'f', 1));
    }
}

void FollowedRamps::takeEnd(const RecordedEvent& event)
{
    const int channel = event.channel();
    if (channel < 0) {
        return;
    }
    Cell& cell = cells.at(static_cast<size_t>(channel));
    const QString why = event.value("why");
    if (why != QLatin1String("reached")) {
        lookForMissing(channel, event.ms);
    }
    cell.ramp.cellRunning = false;
    if (why == QLatin1String("stopped") && cell.isPlanned) {
        tell(RunKinds::rampStopped, step(), channel,
            Words::tr("The ramp to %1 deg C was stopped by hand.").arg(shown(cell.targetDegC)));
    }
}

std::optional<StepRamp> FollowedRamps::takeFromAwaited(int channel)
{
    const auto found = std::find_if(
        awaited.begin(), awaited.end(), [channel](const StepRamp& ramp) { return ramp.channel == channel; });
    if (found == awaited.end()) {
        return std::nullopt;
    }
    const StepRamp ramp = *found;
    awaited.erase(found);
    return ramp;
}

void FollowedRamps::tellMissing()
{
    for (const StepRamp& ramp : qAsConst(awaited)) {
        tell(RunKinds::rampMissing, step(), ramp.channel,
            Words::tr("The ramp to %1 deg C was not begun.").arg(shortened(ramp.targetDegC)));
    }
    awaited.clear();
}

void FollowedRamps::lookForMissing(int channel, qint64 ms)
{
    Cell& cell = cells.at(static_cast<size_t>(channel));
    if (!cell.ramp.isDue(ms - patienceMs)) {
        return;
    }
    ComparedSetPoint setPoint;
    setPoint.channel = channel;
    setPoint.dueMs = cell.ramp.rampNextMs;
    setPoint.plannedDegC = cell.ramp.step(cell.targetDegC);
    const auto found = std::find_if(comparison.steps.rbegin(), comparison.steps.rend(),
        [&setPoint](const ComparedStep& step) { return step.startMs <= setPoint.dueMs; });
    ComparedStep& step = found == comparison.steps.rend() ? comparison.steps.first() : *found;
    step.setPoints.append(setPoint);
    tell(RunKinds::setPointMissing, step, channel,
        Words::tr("The set point %1 deg C was due %2 s before and never sent.")
            .arg(shown(setPoint.plannedDegC))
            .arg(static_cast<double>(ms - setPoint.dueMs) / 1000.0, 0, 'f', 1));
}

void FollowedRamps::tell(const Kind& kind, const ComparedStep& step, int channel, const QString& text)
{
    Finding finding;
    finding.kind = kind;
    finding.text = text;
    finding.step = step.row + 1;
    finding.pass = step.times > 1 ? step.pass : 0;
    finding.channel = channel;
    addOnce(comparison.findings, finding);
}

} // namespace GrowthCheck
