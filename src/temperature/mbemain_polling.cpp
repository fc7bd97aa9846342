// The polling of the controllers: what `polling` asks for is done here, one thing a tick.

#include "app/mbemain.h"
#include "gpib/gpib.h"
#include "temperature/controllermessage.h"

void MBEMain::WatchTMP()
{
    if (!TMPCtrlActive->isChecked()) {
        return;
    }
    switch (polling.watchState) {
    case Polling::State::Read:
        requestReading();
        break;
    case Polling::State::AwaitReply:
        polling.awaitReply();
        break;
    case Polling::State::ReplyReady:
        showReading();
        break;
    case Polling::State::RampStep:
        polling.rampStepped(anyCellRunning() && !rampStep(polling.rampCh));
        break;
    case Polling::State::NextChannel:
        if (polling.nextChannel()) {
            recordTMP();
        }
        break;
    }
    if (polling.countTick()) {
        showElapsed();
    }
}

void MBEMain::requestReading()
{
    const int ch = polling.pollCh;
    if (!cellActive[ch]) {
        currentLabels[ch]->setText(ControllerMessage::unknownValue());
        polling.skipChannel();
        return;
    }
    if (!gpib->isReplyPending() && reqTMP(static_cast<unsigned char>(ch))) {
        polling.requestSent();
    }
}

void MBEMain::showReading()
{
    currentLabels[polling.pollCh]->setText(ControllerMessage::shownValue(polling.tmpReply));
    polling.replyShown();
}

void MBEMain::newData(int bytes, QByteArray line)
{
    if (ControllerMessage::isReply(bytes, line)) {
        polling.takeReply(line);
    }
}
