// Ramp steps on a bus that a reply keeps busy, tick by tick.

#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

namespace {

const QByteArray first = "0120.0";

} // namespace

class RampBusTest : public StationTest
{
    Q_OBJECT

    // The round begins with channel 0, whose ramp step is due: read, ramp step.
    bool awaitFirstSetPoint()
    {
        station->tick(2);
        return station->adapter.expect(Wire::setPoint(0, first));
    }

private slots:
    // Two ramps are running and their cells are out of use: nothing is on the bus but set points.
    void init()
    {
        StationTest::init();
        Station::storeInUse({0, 1});
        station->answers[0] = Wire::reading(100.0);
        station->answers[1] = Wire::reading(100.0);
        QVERIFY(station->open());
        QVERIFY(station->round());
        for (const int channel : {0, 1}) {
            station->pressRun(channel, "200"_s, "5"_s);
            station->click(cell("TCActive", channel));
        }
        DrivenClock::advance(1);
    }

    void aStepWaitsForTheBusAndGoesOutWithTheReply()
    {
        QVERIFY(awaitFirstSetPoint());
        station->tick(299);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(station->text(cell("SDeg", 1)), "0.0"_s);
        station->adapter.send("\x06\r\n");
        station->tick();
        QVERIFY(station->adapter.expect(Wire::setPoint(1, first)));
        QCOMPARE(station->text(cell("SDeg", 1)), "120"_s);
    }

    void aStepGivesUpAfterAFullCycle()
    {
        QVERIFY(awaitFirstSetPoint());
        station->tick(300);
        station->adapter.send("\x06\r\n");
        station->tick();
        // The turn has passed to the other channels, which have no ramp.
        station->tick(20);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(station->text(cell("SDeg", 1)), "0.0"_s);
    }

    void aStepThatGaveUpIsDoneInTheNextRound()
    {
        QVERIFY(awaitFirstSetPoint());
        station->tick(300);
        station->adapter.send("\x06\r\n");
        QVERIFY(station->tickUntil([this] { return !station->setPoints.isEmpty(); }, 40));
        QCOMPARE(station->setPoints, QList<QByteArray>{Wire::setPoint(1, first)});
    }

    void aBusyBusDoesNotStopTheRounds()
    {
        QVERIFY(awaitFirstSetPoint());
        // Nobody ever answers: each round waits a full cycle for each of the two ramps, and is recorded.
        const int before = Station::records();
        station->tick(2000);
        QCOMPARE(Station::records() - before, 3);
        QVERIFY(station->adapter.expectNothing());
    }

    void aSetPointHoldsTheNextRead()
    {
        station->click(cell("TCActive", 1));
        QVERIFY(awaitFirstSetPoint());
        station->tick(100);
        QVERIFY(station->adapter.expectNothing());
        station->adapter.send("\x06\r\n");
        station->tick();
        QVERIFY(station->adapter.expect(Wire::readRequest(1)));
    }

    void anySetPointAnswerWillDo()
    {
        station->click(cell("TCActive", 1));
        QVERIFY(awaitFirstSetPoint());
        station->tick(2);
        // An answer that looks like a reading is stored, and shown nowhere.
        station->adapter.send(Wire::reading(999.0) + "\r\n");
        station->tick();
        QVERIFY(station->adapter.expect(Wire::readRequest(1)));
        station->tick(50);
        QCOMPARE(station->text(cell("CDeg", 0)), "----.-"_s);
        QCOMPARE(station->text(cell("CDeg", 1)), "100"_s);
    }
};

NELVO_TEST_MAIN(RampBusTest)
#include "rampbus.moc"
