// What is sent to the temperature controllers, and what of their answers is taken.

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
    MessageBuffer buffer = inBuffer(ControllerMessage::readRequest(channel));
    return SndTMPCtrl(buffer.data(), bufferSize, false, true);
}

bool MBEMain::setTMP(unsigned char channel, double setPointDegC)
{
    MessageBuffer buffer = inBuffer(ControllerMessage::setPoint(channel, setPointDegC));
    return SndTMPCtrl(buffer.data(), bufferSize, true, true);
}

void MBEMain::newData(int bytes, QByteArray line)
{
    if (!ControllerMessage::isReply(bytes, line)) {
        return;
    }
    tmpReply = line;
    if (watchState == WatchState::AwaitReply) {
        watchState = WatchState::ReplyReady;
    }
}
