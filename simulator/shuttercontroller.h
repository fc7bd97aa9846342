#pragma once

#include "simulator/adapter.h"

namespace Chamber {

/// The controller of the seven source shutters. It takes one byte, the mask, and nothing else: bit n opens
/// shutter n + 1, bit 7 is 0. Since the message is one byte long, its end needs no EOI, and any appended
/// character makes it wrong. It never answers.
class ShutterController
{
public:
    /// Its GPIB address.
    static constexpr int gpibAddress = 3;

    /// Moves the shutters, or leaves all of them where they are when the message is wrong. What happened, for
    /// the log: "shutters oxxoxxx" (shutter 1 first, o for open) or "rejected shutters" and the reason.
    QByteArray take(const BusMessage& message);

    /// The shutters as they stand: bit n is set while shutter n + 1 is open. All closed at first.
    int mask() const { return openMask; }

private:
    int openMask = 0;
};

} // namespace Chamber
