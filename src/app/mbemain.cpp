#include "app/mbemain.h"

#include "app/adapteraddress.h"
#include "app/conditions.h"
#include "base/wallclock.h"
#include "gpib/gpib.h"
#include "journal/journal.h"
#include "journal/linkjournal.h"
#include "program/aline.h"

#include <QFileDialog>
#include <QTimer>

static_assert(
    Channels::count == 9, "mainwindow.ui has nine columns of cell widgets, CName01 to ETime09: add one");
static_assert(Channels::shutterCount == 7,
    "mainwindow.ui has seven columns of shutter widgets, SName01 to NS07: add one");

// The order below is the order in which the parts of the station come alive; each step needs those before it.
MBEMain::MBEMain()
{
    setupUi(this);

    conditions = new Conditions;
    conditions->load(QStringLiteral("NelvoCurrentStat.dat"));

    setupJournal();
    journalState();

    gpib = new GPIB;
    gpib->setObserver(*linkJournal);
    gpib->connectAdapter(adapterAddress(), adapterPort);
    gpib->sndMsg("\n");
    gpib->setAuto(1);

    setupNames();
    setupShutter();
    setupTemperature();
    setupProgram();

    startTime = WallClock::nowMs();
    Tshow->setStartTime(startTime);
    setupHelp();
}

// The station itself never deletes its window; tests, which build many, do.
MBEMain::~MBEMain()
{
    delete progTimer;
    qDeleteAll(progLines);
    delete clipLine;
    delete saveDialog;
    delete loadDialog;
    delete watchTimer;
    delete actionTimer;
    delete gpib;
    delete linkJournal;
    delete journal;
    delete wireJournal;
    delete conditions;
}

void MBEMain::setupNames()
{
    for (const Channels::Channel& channel : Channels::list) {
        cellNames.append(tr(channel.name));
        riseRateLimits.append(channel.riseLimit);
    }
    shutterNames = cellNames;
}
