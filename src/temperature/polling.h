#pragma once

#include "base/channels.h"

#include <QByteArray>

/// Where the polling of the temperature controllers stands: the channels are read one after the other, and
/// each reading is followed by the chance of one channel, in its turn, to take a ramp step.
///
/// One action a tick. Whoever ticks looks at `watchState`, does what it asks for, and says what came of it by
/// the function of that state; countTick() ends the tick.
struct Polling
{
    enum class State {
        Read, ///< channel `pollCh` is to be read
        AwaitReply, ///< its reply is awaited
        ReplyReady, ///< `tmpReply` is to be shown
        RampStep, ///< channel `rampCh` may take a ramp step
        NextChannel, ///< the reading is done
    };

    static constexpr int tickMs = 10;
    /// Ticks in a cycle of the counter: after so many a reply is given up.
    static constexpr int cycleTicks = 300;
    /// What a reading takes whose reply comes within a tick: Read, ReplyReady, RampStep, NextChannel.
    static constexpr int ticksPerReading = 4;
    /// A round of all channels, each read so. A due set point waits so long for its channel's turn.
    static constexpr int leastRoundMs = Channels::count * ticksPerReading * tickMs;

    State watchState = State::Read;
    int tickCount = 99; ///< 0 to cycleTicks - 1
    int sentTick = -1; ///< when the last request went out
    int lastRampTick = -1; ///< when the turn to take a ramp step last passed on
    int pollCh = 0;
    int rampCh = 0;
    QByteArray tmpReply; ///< the last accepted line; "ER" for an error or a time-out
    bool isGivenUp = false; ///< whether it is a time-out's

    /// Read: the channel is not in use.
    void skipChannel();
    /// Read: its request went out.
    void requestSent();
    /// AwaitReply: gives the reply up when the counter has come full circle.
    void awaitReply();
    /// Any state: keeps an accepted line; a reply that is awaited is ready then.
    void takeReply(const QByteArray& line);
    /// ReplyReady: the reading is shown.
    void replyShown();
    /// RampStep: the channel had its chance, or the bus was `busy`. A busy bus is given a full circle of the
    /// counter since the last step, then the turn passes on.
    void rampStepped(bool busy);
    /// NextChannel: true when the last channel was read, so that a round is over.
    bool nextChannel();

    /// Ends a tick; true every tenth time.
    bool countTick();
};
