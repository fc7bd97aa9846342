// The polling of the controllers: what `polling` asks for is done here, one thing a tick.

#include "app/mbemain.h"
#include "gpib/gpib.h"
#include "temperature/controllermessage.h"

void MBEMain::WatchTMP()
{
    journalTick();
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
    journalReading(polling.pollCh);
    polling.replyShown();
}

// The first of several failures in a row, and the reading that ends them: a controller that is out of order
// would fill the journal.
void MBEMain::journalReading(int ch)
{
    const bool failed = polling.tmpReply == ControllerMessage::errorReply;
    if (failed && failedReadings[ch] == 0) {
        journalCell("reading-failed", ch,
            {{"why", polling.isGivenUp ? QStringLiteral("silence") : QStringLiteral("error")}});
    }
    if (!failed && failedReadings[ch] > 0) {
        journalCell("reading-back", ch, {{"failed", QString::number(failedReadings[ch])}});
    }
    failedReadings[ch] = failed ? failedReadings[ch] + 1 : 0;
}

void MBEMain::newData(int bytes, QByteArray line)
{
    if (ControllerMessage::isReply(bytes, line)) {
        polling.takeReply(line);
    }
}
