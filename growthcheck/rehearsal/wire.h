#pragma once

#include "growthcheck/rehearsal/timeline.h"

#include <QByteArray>

#include <functional>

namespace GrowthCheck {

/// What goes over the link to an instrument. Reads and the adapter's own lines ("++addr 1") are the polling's
/// and not the program's.
struct WireMessage
{
    qint64 timeMs = 0; ///< since Run was pressed; it goes out then or a little later, see docs/growthcheck.md
    int address = 0; ///< the instrument's on the bus
    int channel = -1; ///< of a set point; -1 for the shutters
    bool isSure = true; ///< not one that a new ramp may come before
    QByteArray bytes; ///< as the adapter receives them, line end included
};

/// Gives `take` the messages of a whole program in the order of their times, those that ramps send after its
/// end among them, until it says false. True when it had them all.
bool playMessages(const Timeline& timeline, const std::function<bool(const WireMessage&)>& take);

} // namespace GrowthCheck
