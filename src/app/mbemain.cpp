#include "app/mbemain.h"

#include "app/adapteraddress.h"
#include "app/conditions.h"
#include "base/wallclock.h"
#include "gpib/gpib.h"
#include "program/aline.h"

#include <QFileDialog>
#include <QTimer>

// The order below is the order in which the parts of the station come alive; each step needs those before it.
MBEMain::MBEMain()
{
    setupUi(this);

    conditions = new Conditions;
    conditions->load(QStringLiteral("NelvoCurrentStat.dat"));

    gpib = new GPIB;
    gpib->connectAdapter(adapterAddress(), adapterPort);
    gpib->sndMsg("\n");
    gpib->setAuto(1);

    setupNames();
    setupShutter();
    setupTemperature();
    setupProgram();

    startTime = WallClock::nowMs();
    Tshow->setStartTime(startTime);
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
    delete conditions;
}

void MBEMain::setupNames()
{
    cellNames << tr("Be") << tr("Ga") << tr("Si") << tr("As4") << tr("Al") << tr("In") << tr("As7")
              << tr("Main Ch") << tr("Pre Ch");
    shutterNames = cellNames;
    riseRateLimits.fill(50.0, cellNames.size());
}
