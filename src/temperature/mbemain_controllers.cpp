// What is sent to the temperature controllers.

#include "app/mbemain.h"
#include "base/debugline.h"
#include "gpib/gpib.h"
#include "temperature/controllermessage.h"

#include <array>
#include <cstring>

namespace {

constexpr int bufferSize = 1000;
using MessageBuffer = std::array<char, bufferSize>;

MessageBuffer inBuffer(const QByteArray& message)
{
    MessageBuffer buffer{};
    qstrncpy(buffer.data(), message.constData(), bufferSize);
    return buffer;
}

} // namespace

bool MBEMain::SndTMPCtrl(char* msg, int size, bool addBcc, bool waitReply)
{
    if (!gpib->isConnected()) {
        NELVO_DEBUG("temperature") << "not connected";
        return false;
    }
    if (addBcc && !ControllerMessage::appendBlockCheck(msg, size)) {
        return false;
    }
    gpib->setAddr(ControllerMessage::gpibAddress);
    if (waitReply) {
        gpib->setReplyPending();
    }
    gpib->setEos(0);
    gpib->setEoi(0);
    gpib->sndMsg(msg);
    return true;
}

bool MBEMain::reqTMP(unsigned char channel)
{
    const QByteArray request = ControllerMessage::readRequest(channel);
    if (request.isEmpty()) {
        return false;
    }
    MessageBuffer buffer = inBuffer(request);
    return SndTMPCtrl(buffer.data(), bufferSize, false, true);
}

bool MBEMain::setTMP(unsigned char channel, double setPointDegC)
{
    const QByteArray message = ControllerMessage::setPoint(channel, setPointDegC);
    if (message.isEmpty()) {
        return false;
    }
    MessageBuffer buffer = inBuffer(message);
    return SndTMPCtrl(buffer.data(), bufferSize, true, true);
}
