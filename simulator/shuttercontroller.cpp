#include "simulator/shuttercontroller.h"

#include "base/channels.h"

namespace Chamber {

QByteArray ShutterController::take(const BusMessage& message)
{
    if (message.bytes.size() != 1) {
        return "rejected shutters " + QByteArray::number(message.bytes.size()) + " bytes instead of 1";
    }
    const int mask = static_cast<uchar>(message.bytes[0]);
    if (mask >= 1 << Channels::shutterCount) {
        return QByteArrayLiteral("rejected shutters bit 7 is set");
    }
    openMask = mask;
    QByteArray event = QByteArrayLiteral("shutters ");
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        event.append((mask & (1 << shutter)) != 0 ? 'o' : 'x');
    }
    return event;
}

} // namespace Chamber
