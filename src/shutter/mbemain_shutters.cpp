// The shutter panel and the one command that sets all shutters.

#include "app/mbemain.h"
#include "base/debugline.h"
#include "base/numberedwidgets.h"
#include "base/panelstyle.h"
#include "base/wallclock.h"
#include "gpib/gpib.h"
#include "journal/journal.h"
#include "shutter/shuttercommand.h"

#include <QTimer>

void MBEMain::setupShutter()
{
    openText = tr("Open");
    closeText = tr("Close");

    shutterLabels = numberedWidgets<QLabel>(*this, QStringLiteral("SName"), Channels::shutterCount);
    currentButtons = numberedWidgets<QToolButton>(*this, QStringLiteral("CS"), Channels::shutterCount);
    nextButtons = numberedWidgets<QToolButton>(*this, QStringLiteral("NS"), Channels::shutterCount);

    nextShutterState.fill(false, Channels::shutterCount);
    currentShutterState.fill(false, Channels::shutterCount);

    for (int n = 0; n < nextButtons.size(); ++n) {
        showState(*nextButtons[n], nextShutterState[n], nextShutterState[n] ? openText : closeText);
        shutterLabels[n]->setText(shutterNames[n]);
        connect(nextButtons[n], SIGNAL(clicked()), this, SLOT(NewNextShutter()), Qt::UniqueConnection);
        connect(currentButtons[n], SIGNAL(clicked()), this, SLOT(NewCurrentShutter()), Qt::UniqueConnection);
    }
    connect(ChangeShutterB, SIGNAL(clicked()), this, SLOT(ChangeShutter()), Qt::UniqueConnection);
    connect(AllCloseB, SIGNAL(clicked()), this, SLOT(AllClose()), Qt::UniqueConnection);

    actionTimer = new QTimer;
    connect(actionTimer, SIGNAL(timeout()), this, SLOT(ActionShutter()), Qt::UniqueConnection);

    AllClose();
}

void MBEMain::NewNextShutter()
{
    const int n = nextButtons.indexOf(qobject_cast<QToolButton*>(sender()));
    if (n < 0) {
        return;
    }
    nextShutterState[n] = !nextShutterState[n];
    showState(*nextButtons[n], nextShutterState[n], nextShutterState[n] ? openText : closeText);
}

void MBEMain::NewCurrentShutter()
{
    const int n = currentButtons.indexOf(qobject_cast<QToolButton*>(sender()));
    if (n < 0) {
        return;
    }
    currentShutterState[n] = !currentShutterState[n];
    ActionShutter();
}

void MBEMain::ChangeShutter()
{
    commandShutters(nextShutterState);
}

void MBEMain::AllClose()
{
    NELVO_DEBUG("shutter") << "All Close" << nextButtons.size();
    commandShutters(QVector<bool>(Channels::shutterCount, false));
}

void MBEMain::commandShutters(const QVector<bool>& open)
{
    currentShutterState = open;
    ActionShutter();
}

// The first time, and whenever something else waits: a bus that never comes free must not hide what was asked
// for.
void MBEMain::journalShutterWait()
{
    if (shutterWaitSinceMs == 0) {
        shutterWaitSinceMs = WallClock::nowMs();
    }
    const QString letters = shutterLetters(currentShutterState);
    if (letters != waitingShutters) {
        waitingShutters = letters;
        journal->write("shutters-wait", {{"open", letters}});
    }
}

void MBEMain::ActionShutter()
{
    // A reply is pending only while the temperature controllers are addressed, so the address decides
    // nothing; it says what the test is about.
    if (gpib->address() != shutterAddress && gpib->isReplyPending()) {
        NELVO_DEBUG("shutter") << "Shutter retrying";
        journalShutterWait();
        actionTimer->setInterval(10);
        actionTimer->setSingleShot(true);
        actionTimer->start();
        return;
    }
    NELVO_DEBUG("shutter") << "Shutter Ok";

    // Before the connection test: the panel shows what is commanded even when the link is down.
    for (int n = 0; n < currentButtons.size(); ++n) {
        showState(*currentButtons[n], currentShutterState[n], currentShutterState[n] ? openText : closeText);
    }

    // Selected before the connection is asked for and again after it, as the sequence has always been; the
    // second time sends nothing.
    gpib->setAddr(shutterAddress);
    if (!gpib->isConnected()) {
        NELVO_DEBUG("shutter") << "not connected for shtter controll";
        return;
    }
    NELVO_DEBUG("shutter") << tr("GPIB shutter controll [%1]").arg(shutterLetters(currentShutterState));

    const QByteArray command = shutterCommand(currentShutterState);
    gpib->setAddr(shutterAddress);
    gpib->setEos(3);
    gpib->setEoi(1);
    gpib->sndRaw(command.constData(), command.size());

    const qint64 waitedMs = shutterWaitSinceMs == 0 ? 0 : WallClock::nowMs() - shutterWaitSinceMs;
    shutterWaitSinceMs = 0;
    waitingShutters.clear();
    journal->write("shutters",
        {{"open", shutterLetters(currentShutterState)}, {"waited-ms", QString::number(waitedMs)},
            linkField()});
}
