// The cell panel, and the state machine that polls the controllers one after the other.

#include "app/conditions.h"
#include "app/mbemain.h"
#include "base/panelstyle.h"
#include "gpib/gpib.h"
#include "temperature/controllermessage.h"

#include <QTimer>

namespace {

constexpr int lastTick = 299;
constexpr int ticksPerElapsedUpdate = 10;

QString activeKey(int ch)
{
    return QStringLiteral("ActiveF%1").arg(ch);
}

} // namespace

void MBEMain::setupTemperature()
{
    activeText = tr("Active");
    notInUseText = tr("NotInUse");
    runText = tr("Run");
    stopText = tr("Stop");

    cellLabels << CName01 << CName02 << CName03 << CName04 << CName05 << CName06 << CName07 << CName08
               << CName09;
    activeButtons << TCActive01 << TCActive02 << TCActive03 << TCActive04 << TCActive05 << TCActive06
                  << TCActive07 << TCActive08 << TCActive09;
    currentLabels << CDeg01 << CDeg02 << CDeg03 << CDeg04 << CDeg05 << CDeg06 << CDeg07 << CDeg08 << CDeg09;
    targetEdits << TDeg01 << TDeg02 << TDeg03 << TDeg04 << TDeg05 << TDeg06 << TDeg07 << TDeg08 << TDeg09;
    durationEdits << DTime01 << DTime02 << DTime03 << DTime04 << DTime05 << DTime06 << DTime07 << DTime08
                  << DTime09;
    runButtons << RunT01 << RunT02 << RunT03 << RunT04 << RunT05 << RunT06 << RunT07 << RunT08 << RunT09;
    setPointLabels << SDeg01 << SDeg02 << SDeg03 << SDeg04 << SDeg05 << SDeg06 << SDeg07 << SDeg08 << SDeg09;
    elapsedLabels << ETime01 << ETime02 << ETime03 << ETime04 << ETime05 << ETime06 << ETime07 << ETime08
                  << ETime09;

    for (const QString& name : qAsConst(cellNames)) {
        Tshow->addLine(name, true, -1, -1, -1);
    }

    const int channels = runButtons.size();
    cellActive.fill(true, channels);
    cellRunning.fill(false, channels);
    rampNextMs.fill(0, channels);
    rampStartMs.fill(0, channels);
    rampRate.fill(0.0, channels);
    rampSetPoint.fill(0.0, channels);
    for (int n = 0; n < channels; ++n) {
        showState(*runButtons[n], false, runText);
        cellLabels[n]->setText(cellNames[n]);
        connect(activeButtons[n], SIGNAL(clicked()), this, SLOT(ActivateCell()), Qt::UniqueConnection);
        connect(runButtons[n], SIGNAL(clicked()), this, SLOT(RunStopTControll()), Qt::UniqueConnection);
    }
    for (int n = 0; n < channels; ++n) {
        cellActive[n] = conditions->value(activeKey(n)) != QLatin1String("InActive");
        showCellActive(n);
    }

    tickCount = 99;
    sentTick = -1;
    lastRampTick = -1;
    pollCh = 0;
    rampCh = 0;
    watchState = WatchState::Read;

    watchTimer = new QTimer;
    watchTimer->setInterval(10);
    connect(watchTimer, SIGNAL(timeout()), this, SLOT(WatchTMP()), Qt::UniqueConnection);
    connect(
        gpib, SIGNAL(dataReady(int, QByteArray)), this, SLOT(newData(int, QByteArray)), Qt::UniqueConnection);
    watchTimer->start();
}

void MBEMain::showCellActive(int ch)
{
    showState(*activeButtons[ch], cellActive[ch], cellActive[ch] ? activeText : notInUseText);
}

void MBEMain::ActivateCell()
{
    const int n = activeButtons.indexOf(qobject_cast<QToolButton*>(sender()));
    if (n < 0) {
        return;
    }
    cellActive[n] = !cellActive[n];
    conditions->setValue(activeKey(n), cellActive[n] ? QStringLiteral("Active") : QStringLiteral("InActive"));
    showCellActive(n);
}

void MBEMain::WatchTMP()
{
    if (!TMPCtrlActive->isChecked()) {
        return;
    }
    switch (watchState) {
    case WatchState::Read:
        requestReading();
        break;
    case WatchState::AwaitReply:
        awaitReading();
        break;
    case WatchState::ReplyReady:
        showReading();
        break;
    case WatchState::RampStep:
        stepRamps();
        break;
    case WatchState::NextChannel:
        nextPoll();
        break;
    }
    tickCount = tickCount < lastTick ? tickCount + 1 : 0;
    if (tickCount % ticksPerElapsedUpdate == 0) {
        showElapsed();
    }
}

void MBEMain::requestReading()
{
    if (!cellActive[pollCh]) {
        currentLabels[pollCh]->setText(ControllerMessage::unknownValue());
        watchState = WatchState::RampStep;
        return;
    }
    if (gpib->isReplyPending() || !reqTMP(static_cast<unsigned char>(pollCh))) {
        return;
    }
    watchState = WatchState::AwaitReply;
    sentTick = tickCount;
}

void MBEMain::awaitReading()
{
    // The counter has come full circle: 3 s without an answer.
    if (tickCount == sentTick) {
        tmpReply = ControllerMessage::errorReply;
        watchState = WatchState::ReplyReady;
    }
}

void MBEMain::showReading()
{
    currentLabels[pollCh]->setText(ControllerMessage::shownValue(tmpReply));
    watchState = WatchState::RampStep;
}

void MBEMain::stepRamps()
{
    if (anyCellRunning()) {
        const bool busy = !rampStep(rampCh);
        if (busy && lastRampTick != tickCount) {
            return;
        }
    }
    watchState = WatchState::NextChannel;
    rampCh = (rampCh + 1) % runButtons.size();
    lastRampTick = tickCount;
}

void MBEMain::nextPoll()
{
    ++pollCh;
    if (pollCh >= currentLabels.size()) {
        recordTMP();
        pollCh = 0;
    }
    watchState = WatchState::Read;
}
