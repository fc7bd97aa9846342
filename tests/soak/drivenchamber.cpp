// What the soak stands on: a station and a chamber by a driven clock.

#include "support/drivenchamber.h"

#include "support/files.h"
#include "support/testmain.h"
#include "support/wire.h"

#include <QFile>
#include <QLabel>

using namespace TestText;

namespace {

constexpr qint64 minuteMs = 60000;

// Keeps all that goes over the wire.
class Recorder : public DrivenWatcher
{
public:
    void cameFromStation(const QByteArray& bytes) override { sent += bytes; }
    void goesToStation(const QByteArray& bytes) override { answered += bytes; }
    void linkGone() override { ++linksGone; }
    void chamberSaid(const QByteArray& event) override { events.append(event); }
    void polled() override { ++ticks; }
    void retried() override { ++retries; }

    QByteArray sent;
    QByteArray answered;
    QList<QByteArray> events;
    int linksGone = 0;
    int ticks = 0;
    int retries = 0;
};

Chamber::Options withLatency(int ms, int jitterMs = 0)
{
    Chamber::Options options;
    options.latencyMs = ms;
    options.jitterMs = jitterMs;
    return options;
}

} // namespace

class DrivenChamberTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QFile::remove(stateFile);
        QFile::remove(recordFile);
    }

    void theOpeningHasArrivedWhenTheWindowIsOpen()
    {
        Recorder seen;
        DrivenChamber station(Chamber::Options{}, seen);
        station.open();
        QCOMPARE(seen.sent, Wire::opening);
        QCOMPARE(seen.events.last(), QByteArray("shutters xxxxxxx"));
    }

    void aSecondHasAHundredTicks()
    {
        Recorder seen;
        DrivenChamber station(Chamber::Options{}, seen);
        station.open();
        const qint64 before = DrivenClock::nowMs();
        station.run(1000);
        QCOMPARE(seen.ticks, 100);
        QCOMPARE(DrivenClock::nowMs() - before, 1000);
    }

    void theSameSeedGivesTheSameMinutes()
    {
        QByteArray sent;
        QByteArray answered;
        for (int time = 0; time < 2; ++time) {
            Recorder seen;
            DrivenChamber station(withLatency(20, 15), seen);
            station.open();
            station.run(minuteMs);
            station.pressRun(2, "80"_s, "2"_s);
            station.run(minuteMs);
            station.close();
            QVERIFY(seen.answered.size() > 1000);
            QVERIFY(time == 0 || (seen.sent == sent && seen.answered == answered));
            sent = seen.sent;
            answered = seen.answered;
            cleanup();
        }
    }

    void aShutterCommandThatWaitsIsTriedAgainEveryTick()
    {
        Recorder seen;
        DrivenChamber station(withLatency(205), seen);
        station.open();
        station.run(20); // a reading is awaited; what frees the bus is the adapter's answer to the opening
        station.click("CS03"_s);
        station.run(180);
        QCOMPARE(seen.events.last(), QByteArray("shutters xxxxxxx"));
        QCOMPARE(seen.retries, 18);
        station.run(30);
        QCOMPARE(seen.events.last(), QByteArray("shutters xxoxxxx"));
        QCOMPARE(seen.retries, 19);
    }

    void aStationThatStandsStillTakesNothingIn()
    {
        Recorder seen;
        DrivenChamber station(withLatency(55), seen);
        station.open();
        station.run(20);
        const int ticks = seen.ticks;
        station.stand(minuteMs);
        QCOMPARE(seen.ticks, ticks);
        QVERIFY(seen.answered.endsWith("C\r\n"));
        QCOMPARE(station.text("CDeg01"_s), "0.0"_s);
        station.run(20);
        QVERIFY(station.text("CDeg01"_s) != "0.0"_s);
    }

    void aWindowThatClosesHasLeftTheChamber()
    {
        Recorder seen;
        DrivenChamber station(Chamber::Options{}, seen);
        station.open();
        station.close();
        QCOMPARE(seen.linksGone, 1);
        station.open();
        QCOMPARE(seen.sent, Wire::opening + Wire::opening);
    }
};

NELVO_TEST_MAIN(DrivenChamberTest)
#include "drivenchamber.moc"
