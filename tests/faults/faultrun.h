#pragma once

#include "faults/attribution.h"
#include "faults/faultcase.h"
#include "faults/wirecheck.h"

#include "simulator/randomsource.h"

#include <QMap>

/// One station beside a chamber with faults, an operator at its shutters and ramps for some time, and what
/// has to hold whatever happens on the link.
class FaultRun : public DrivenWatcher
{
public:
    FaultRun(const FaultCase& theCase, quint64 seed);

    /// What did not hold first; empty when all did.
    QString play(qint64 ms);

    const Attribution& attribution() const { return readings; }
    const WireCheck& wire() const { return check; }
    /// How many spells of wrong readings the journal told within a round.
    int toldSpells() const;
    int faults() const;
    double worstTickMs() const { return station.tickCosts().worstMs(); }
    double worstActionMs() const { return station.actionCosts().worstMs(); }
    /// What took too long too often; empty when nothing did.
    QString slowness() const;

    void cameFromStation(const QByteArray& bytes) override;
    void linkGone() override { check.linkGone(); }
    void chamberSaid(const QByteArray& event) override;

private:
    void act();
    void clickShutter();
    void closeAll();
    void clickRun();
    void judgeReading();
    bool isAnothers(double degC) const;
    QString signOfLife();
    QString unsentCommand();
    QString untoldSpells() const;
    QString untoldFault() const;
    void readJournal();

    const FaultCase tried;
    Chamber::RandomSource random;
    WireCheck check;
    Attribution readings;
    QMap<QByteArray, int> struck; // how often each kind of fault, by its name
    QByteArray rejected; // what the chamber could not obey last
    QMap<QString, QVector<qint64>> told; // the journal's events by kind, ms since the start
    qint64 startMs = 0;
    int lastRead = -1; // the channel that was asked last
    DrivenChamber station; // the last: it tells the others even while it ends
};
