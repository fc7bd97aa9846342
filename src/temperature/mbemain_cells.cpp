// The cell panel: its widgets, and which cells are in use.

#include "app/conditions.h"
#include "app/mbemain.h"
#include "base/numberedwidgets.h"
#include "base/numberentry.h"
#include "base/panelstyle.h"
#include "gpib/gpib.h"
#include "journal/journal.h"

#include <QTimer>

namespace {

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

    findCellWidgets();
    for (const QString& name : qAsConst(cellNames)) {
        Tshow->addLine(name, true, -1, -1, -1);
    }

    cellActive.fill(true, Channels::count);
    ramps.resize(Channels::count);
    failedReadings.fill(0, Channels::count);
    for (int n = 0; n < Channels::count; ++n) {
        showState(*runButtons[n], false, runText);
        cellLabels[n]->setText(cellNames[n]);
        makeNumberEntry(*targetEdits[n]);
        makeNumberEntry(*durationEdits[n]);
        connect(activeButtons[n], SIGNAL(clicked()), this, SLOT(ActivateCell()), Qt::UniqueConnection);
        connect(runButtons[n], SIGNAL(clicked()), this, SLOT(RunStopTControll()), Qt::UniqueConnection);
        cellActive[n] = conditions->value(activeKey(n)) != QLatin1String("InActive");
        showCellActive(n);
        // Their style sheets have to be there: they count for a button's size.
        keepRoomFor(*activeButtons[n], {activeText, notInUseText});
        keepRoomFor(*runButtons[n], {runText, stopText});
    }

    connect(TMPCtrlActive, &QRadioButton::toggled, this, [this](bool on) {
        journal->write("control", {{"is", on ? QStringLiteral("on") : QStringLiteral("off")}});
    });

    watchTimer = new QTimer;
    watchTimer->setInterval(10);
    connect(watchTimer, SIGNAL(timeout()), this, SLOT(WatchTMP()), Qt::UniqueConnection);
    connect(
        gpib, SIGNAL(dataReady(int, QByteArray)), this, SLOT(newData(int, QByteArray)), Qt::UniqueConnection);
    watchTimer->start();
}

void MBEMain::findCellWidgets()
{
    cellLabels = numberedWidgets<QLabel>(*this, QStringLiteral("CName"), Channels::count);
    activeButtons = numberedWidgets<QToolButton>(*this, QStringLiteral("TCActive"), Channels::count);
    currentLabels = numberedWidgets<QLabel>(*this, QStringLiteral("CDeg"), Channels::count);
    targetEdits = numberedWidgets<QLineEdit>(*this, QStringLiteral("TDeg"), Channels::count);
    durationEdits = numberedWidgets<QLineEdit>(*this, QStringLiteral("DTime"), Channels::count);
    runButtons = numberedWidgets<QToolButton>(*this, QStringLiteral("RunT"), Channels::count);
    setPointLabels = numberedWidgets<QLabel>(*this, QStringLiteral("SDeg"), Channels::count);
    elapsedLabels = numberedWidgets<QLabel>(*this, QStringLiteral("ETime"), Channels::count);
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
    journalCell("in-use", n, {{"is", cellActive[n] ? QStringLiteral("Active") : QStringLiteral("InActive")}});
    journalState();
}
