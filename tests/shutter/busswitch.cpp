// The bytes with which the bus changes between shutters and temperatures.

#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

class BusSwitchTest : public QuietStationTest
{
    Q_OBJECT

    // Answers the read of `channel` and ticks until the next channel's read is due.
    void answerRead(int channel)
    {
        station->adapter.send(Wire::reading(100.0 + channel) + "\r\n");
        station->tick(3);
    }

private slots:
    void init()
    {
        QuietStationTest::init();
        station->tick();
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
    }

    void theFirstReadFollowsTheOpening()
    {
        // open() and init() have taken the whole opening stream; not a byte more has come.
        QVERIFY(station->adapter.expectNothing());
    }

    void laterReadsNeedNoSwitch()
    {
        for (int channel = 1; channel < Channels::count; ++channel) {
            answerRead(channel - 1);
            station->tick();
            QVERIFY(station->adapter.expect(Wire::readRequest(channel)));
        }
    }

    void shuttersAfterTemperatures()
    {
        answerRead(0);
        station->click(cell("CS", 0));
        QVERIFY(station->adapter.expect(Wire::toShutters + Wire::shutters(0x01)));
    }

    void laterShutterCommandsNeedNoSwitch()
    {
        answerRead(0);
        station->click(cell("CS", 0));
        station->click(cell("CS", 1));
        station->click("AllCloseB"_s);
        QVERIFY(station->adapter.expect(
            Wire::toShutters + Wire::shutters(0x01) + Wire::shutters(0x03) + Wire::shutters(0x00)));
    }

    void temperaturesAfterShutters()
    {
        answerRead(0);
        station->click(cell("CS", 0));
        station->tick();
        QVERIFY(station->adapter.expect(
            Wire::toShutters + Wire::shutters(0x01) + Wire::toTemperatures + Wire::readRequest(1)));
    }

    void thereAndBackManyTimes()
    {
        for (int turn = 0; turn < 20; ++turn) {
            const int channel = turn % Channels::count;
            answerRead(channel);
            station->click(cell("CS", 0));
            station->tick();
            const QByteArray command = Wire::shutters(turn % 2 == 0 ? 0x01 : 0x00);
            QVERIFY(station->adapter.expect(Wire::toShutters + command + Wire::toTemperatures
                + Wire::readRequest((channel + 1) % Channels::count)));
        }
    }

    void aSetPointAfterShutters()
    {
        // The read is answered first: the ramp starts from the measured 100 deg C.
        station->adapter.send(Wire::reading(100.0) + "\r\n");
        station->tick();
        station->pressRun(0, "200"_s, "5"_s);
        DrivenClock::advance(1);
        station->click(cell("CS", 0));
        station->tick();
        QVERIFY(station->adapter.expect(
            Wire::toShutters + Wire::shutters(0x01) + Wire::toTemperatures + Wire::setPoint(0, "0120.0")));
    }
};

NELVO_TEST_MAIN(BusSwitchTest)
#include "busswitch.moc"
