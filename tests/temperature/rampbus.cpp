// Ramp steps on a bus that a reply keeps busy, tick by tick.

#include "support/stationfixture.h"
#include "support/testmain.h"

class RampBusTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aStepWaitsForTheBusAndGoesOutWithTheReply();
    void aStepGivesUpAfterAFullCycle();
    void aStepThatGaveUpIsDoneInTheNextRound();
    void aBusyBusDoesNotStopTheRounds();
    void aSetPointHoldsTheNextRead();
    void anySetPointAnswerWillDo();

private:
    bool awaitFirstSetPoint();

    std::unique_ptr<StationFixture> station;
};

namespace {

const QByteArray first = "0120.0";

} // namespace

// Two ramps are running and their cells are out of use: nothing is on the bus but set points.
void RampBusTest::init()
{
    station = std::make_unique<StationFixture>();
    StationFixture::storeInUse({0, 1});
    station->answers[0] = reading(100.0);
    station->answers[1] = reading(100.0);
    QVERIFY(station->open());
    QVERIFY(station->round());
    for (const char* number : {"01", "02"}) {
        const QString suffix = QString::fromLatin1(number);
        station->type(QStringLiteral("TDeg") + suffix, QStringLiteral("200"));
        station->type(QStringLiteral("DTime") + suffix, QStringLiteral("5"));
        station->click(QStringLiteral("RunT") + suffix);
        station->click(QStringLiteral("TCActive") + suffix);
    }
    DrivenClock::advance(1);
}

void RampBusTest::cleanup()
{
    station.reset();
}

// The round begins with channel 0, whose ramp step is due: read, ramp step.
bool RampBusTest::awaitFirstSetPoint()
{
    station->tick(2);
    return station->adapter.expect(setPointBytes(0, first));
}

void RampBusTest::aStepWaitsForTheBusAndGoesOutWithTheReply()
{
    QVERIFY(awaitFirstSetPoint());
    station->tick(299);
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(station->text(QStringLiteral("SDeg02")), QStringLiteral("0.0"));
    station->adapter.send("\x06\r\n");
    station->tick();
    QVERIFY(station->adapter.expect(setPointBytes(1, first)));
    QCOMPARE(station->text(QStringLiteral("SDeg02")), QStringLiteral("120"));
}

void RampBusTest::aStepGivesUpAfterAFullCycle()
{
    QVERIFY(awaitFirstSetPoint());
    station->tick(300);
    station->adapter.send("\x06\r\n");
    station->tick();
    // The turn has passed to the other channels, which have no ramp.
    station->tick(20);
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(station->text(QStringLiteral("SDeg02")), QStringLiteral("0.0"));
}

void RampBusTest::aStepThatGaveUpIsDoneInTheNextRound()
{
    QVERIFY(awaitFirstSetPoint());
    station->tick(300);
    station->adapter.send("\x06\r\n");
    QVERIFY(station->tickUntil([this] { return !station->setPoints.isEmpty(); }, 40));
    QCOMPARE(station->setPoints, QList<QByteArray>{setPointBytes(1, first).chopped(1)});
}

void RampBusTest::aBusyBusDoesNotStopTheRounds()
{
    QVERIFY(awaitFirstSetPoint());
    // Nobody ever answers: each round waits a full cycle for each of the two ramps, and is recorded.
    const int before = StationFixture::records();
    station->tick(2000);
    QCOMPARE(StationFixture::records() - before, 3);
    QVERIFY(station->adapter.expectNothing());
}

void RampBusTest::aSetPointHoldsTheNextRead()
{
    station->click(QStringLiteral("TCActive02"));
    QVERIFY(awaitFirstSetPoint());
    station->tick(100);
    QVERIFY(station->adapter.expectNothing());
    station->adapter.send("\x06\r\n");
    station->tick();
    QVERIFY(station->adapter.expect(readBytes(1)));
}

void RampBusTest::anySetPointAnswerWillDo()
{
    station->click(QStringLiteral("TCActive02"));
    QVERIFY(awaitFirstSetPoint());
    station->tick(2);
    // An answer that looks like a reading is stored, and shown nowhere.
    station->adapter.send(reading(999.0) + "\r\n");
    station->tick();
    QVERIFY(station->adapter.expect(readBytes(1)));
    station->tick(50);
    QCOMPARE(station->text(QStringLiteral("CDeg01")), QStringLiteral("----.-"));
    QCOMPARE(station->text(QStringLiteral("CDeg02")), QStringLiteral("100"));
}

NELVO_TEST_MAIN(RampBusTest)

#include "rampbus.moc"
