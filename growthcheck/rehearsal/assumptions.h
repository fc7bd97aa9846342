#pragma once

#include "base/channels.h"

#include <QDateTime>

#include <array>

namespace GrowthCheck {

/// What is taken for granted of a run that has not happened yet.
struct Assumptions
{
    /// What the cell panel shows of a channel when the program starts.
    struct Start
    {
        enum class Kind {
            NotTold, ///< nobody said; counted as the station counts what it does not know
            None, ///< "----.-", for the whole program: not in use, or its controller says nothing
            Known,
        };
        Kind kind = Kind::NotTold;
        double degC = 0.0;
    };

    std::array<Start, Channels::count> starts; ///< by channel
    qint64 holdMs = 0; ///< how long the operator waits at each hold
    int replyMs = 10; ///< how long a controller takes to reply
    QDateTime runAt; ///< when Run is pressed, local time; invalid when nobody said

    /// A polling round: how long a set point may wait for its channel's turn. Replies count twice where they
    /// take more than a tick, since a set point awaits one too.
    qint64 roundMs() const;
};

} // namespace GrowthCheck
