#include "temperature/polling.h"

#include "temperature/controllermessage.h"

namespace {

constexpr int ticksPerElapsedUpdate = 10;

} // namespace

void Polling::skipChannel()
{
    watchState = State::RampStep;
}

void Polling::requestSent()
{
    watchState = State::AwaitReply;
    sentTick = tickCount;
}

void Polling::awaitReply()
{
    if (tickCount == sentTick) {
        tmpReply = ControllerMessage::errorReply;
        isGivenUp = true;
        watchState = State::ReplyReady;
    }
}

void Polling::takeReply(const QByteArray& line)
{
    tmpReply = line;
    isGivenUp = false;
    if (watchState == State::AwaitReply) {
        watchState = State::ReplyReady;
    }
}

void Polling::replyShown()
{
    watchState = State::RampStep;
}

void Polling::rampStepped(bool busy)
{
    if (busy && lastRampTick != tickCount) {
        return;
    }
    watchState = State::NextChannel;
    rampCh = (rampCh + 1) % Channels::count;
    lastRampTick = tickCount;
}

bool Polling::nextChannel()
{
    watchState = State::Read;
    pollCh = (pollCh + 1) % Channels::count;
    return pollCh == 0;
}

bool Polling::countTick()
{
    tickCount = (tickCount + 1) % cycleTicks;
    return tickCount % ticksPerElapsedUpdate == 0;
}
