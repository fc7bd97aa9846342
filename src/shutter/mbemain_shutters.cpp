// The shutter panel and the one command that sets all shutters.

#include "app/mbemain.h"
#include "base/debugline.h"
#include "base/panelstyle.h"
#include "gpib/gpib.h"
#include "shutter/shuttercommand.h"

#include <QTimer>

void MBEMain::setupShutter()
{
    openText = tr("Open");
    closeText = tr("Close");

    shutterLabels << SName01 << SName02 << SName03 << SName04 << SName05 << SName06 << SName07;
    currentButtons << CS01 << CS02 << CS03 << CS04 << CS05 << CS06 << CS07;
    nextButtons << NS01 << NS02 << NS03 << NS04 << NS05 << NS06 << NS07;

    nextShutterState.fill(false, nextButtons.size());
    currentShutterState.fill(false, nextButtons.size());

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
    currentShutterState = nextShutterState;
    ActionShutter();
}

void MBEMain::AllClose()
{
    NELVO_DEBUG("shutter") << "All Close" << nextButtons.size();
    currentShutterState.fill(false);
    ActionShutter();
}

void MBEMain::ActionShutter()
{
    if (gpib->address() != shutterAddress && gpib->isReplyPending()) {
        NELVO_DEBUG("shutter") << "Shutter retrying";
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
}
