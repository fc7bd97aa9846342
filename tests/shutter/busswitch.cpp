// The bytes with which the bus changes between shutters and temperatures.

#include "support/stationfixture.h"
#include "support/testmain.h"

class BusSwitchTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFirstReadFollowsTheOpening();
    void laterReadsNeedNoSwitch();
    void shuttersAfterTemperatures();
    void laterShutterCommandsNeedNoSwitch();
    void temperaturesAfterShutters();
    void thereAndBackManyTimes();
    void aSetPointAfterShutters();

private:
    void answerRead(int channel);

    std::unique_ptr<StationFixture> station;
};

namespace {

const QByteArray toTemperatures = "++addr 1\n++eos 0\n++eoi 1\n";
const QByteArray toShutters = "++addr 3\n++eos 3\n++eoi 0\n";

} // namespace

void BusSwitchTest::init()
{
    station = std::make_unique<StationFixture>();
    QVERIFY(station->open());
    station->tick();
    QVERIFY(station->adapter.expect(toTemperatures + readBytes(0)));
}

void BusSwitchTest::cleanup()
{
    const bool isQuiet = QTest::currentTestFailed() || station->adapter.expectNothing();
    station.reset();
    QVERIFY(isQuiet);
}

// Answers the read of `channel` and ticks until the next channel's read is due.
void BusSwitchTest::answerRead(int channel)
{
    station->adapter.send(reading(100.0 + channel) + "\r\n");
    station->tick(3);
}

void BusSwitchTest::theFirstReadFollowsTheOpening()
{
    // open() and init() have taken the whole opening stream; not a byte more has come.
    QVERIFY(station->adapter.expectNothing());
}

void BusSwitchTest::laterReadsNeedNoSwitch()
{
    for (int channel = 1; channel < 9; ++channel) {
        answerRead(channel - 1);
        station->tick();
        QVERIFY(station->adapter.expect(readBytes(channel)));
    }
}

void BusSwitchTest::shuttersAfterTemperatures()
{
    answerRead(0);
    station->click(QStringLiteral("CS01"));
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x01\n"));
}

void BusSwitchTest::laterShutterCommandsNeedNoSwitch()
{
    answerRead(0);
    station->click(QStringLiteral("CS01"));
    station->click(QStringLiteral("CS02"));
    station->click(QStringLiteral("AllCloseB"));
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x01\n\x1B\x03\n" + QByteArray("\x1B\x00\n", 3)));
}

void BusSwitchTest::temperaturesAfterShutters()
{
    answerRead(0);
    station->click(QStringLiteral("CS01"));
    station->tick();
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x01\n" + toTemperatures + readBytes(1)));
}

void BusSwitchTest::thereAndBackManyTimes()
{
    for (int turn = 0; turn < 20; ++turn) {
        const int channel = turn % 9;
        answerRead(channel);
        station->click(QStringLiteral("CS01"));
        station->tick();
        const QByteArray command = QByteArray("\x1B") + static_cast<char>(turn % 2 == 0 ? 1 : 0) + '\n';
        QVERIFY(
            station->adapter.expect(toShutters + command + toTemperatures + readBytes((channel + 1) % 9)));
    }
}

void BusSwitchTest::aSetPointAfterShutters()
{
    // The read is answered first: the ramp starts from the measured 100 deg C.
    station->adapter.send(reading(100.0) + "\r\n");
    station->tick();
    station->type(QStringLiteral("TDeg01"), QStringLiteral("200"));
    station->type(QStringLiteral("DTime01"), QStringLiteral("5"));
    station->click(QStringLiteral("RunT01"));
    DrivenClock::advance(1);
    station->click(QStringLiteral("CS01"));
    station->tick();
    QVERIFY(station->adapter.expect(toShutters + "\x1B\x01\n" + toTemperatures + setPointBytes(0, "0120.0")));
}

NELVO_TEST_MAIN(BusSwitchTest)

#include "busswitch.moc"
