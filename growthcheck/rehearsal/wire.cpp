#include "growthcheck/rehearsal/wire.h"

#include "growthcheck/rehearsal/playedsteps.h"
#include "shutter/shuttercommand.h"
#include "temperature/controllermessage.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

WireMessage shutters(const PlayedStep& step)
{
    WireMessage message;
    message.timeMs = step.startMs;
    message.address = shutterAddress;
    message.bytes = shutterCommand(step.planned.plan.shutters);
    return message;
}

WireMessage setPoint(const PlannedSetPoint& planned)
{
    constexpr int roomForCheck = 2;
    QByteArray text = ControllerMessage::setPoint(planned.channel, planned.degC);
    text.append(QByteArray(roomForCheck, '\0'));
    ControllerMessage::appendBlockCheck(text.data(), text.size());
    WireMessage message;
    message.timeMs = planned.dueMs;
    message.address = ControllerMessage::gpibAddress;
    message.channel = planned.channel;
    message.isSure = planned.isSure;
    message.bytes = QByteArray(text.constData()) + '\n';
    return message;
}

} // namespace

bool playMessages(const Timeline& timeline, const std::function<bool(const WireMessage&)>& take)
{
    const auto takeStep = [&take](const PlayedStep& step) {
        return take(shutters(step))
            && std::all_of(step.setPoints.begin(), step.setPoints.end(),
                [&take](const PlannedSetPoint& planned) { return take(setPoint(planned)); });
    };
    return playSteps(timeline, takeStep)
        && std::all_of(timeline.tail.begin(), timeline.tail.end(),
            [&take](const PlannedSetPoint& planned) { return take(setPoint(planned)); });
}

} // namespace GrowthCheck
