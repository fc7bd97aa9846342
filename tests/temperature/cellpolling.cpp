// Polling as the operator sees it: nine temperatures, read one after the other.

#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

class CellPollingTest : public StationTest
{
    Q_OBJECT

    QString measured(int channel) const { return station->text(cell("CDeg", channel)); }
    QString elapsed(int channel) const { return station->text(cell("ETime", channel)); }

private slots:
    void channelsAreReadInOrder()
    {
        QVERIFY(station->open());
        QVERIFY(station->round());
        QVERIFY(station->round());
        QCOMPARE(station->reads, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 0, 1, 2, 3, 4, 5, 6, 7, 8}));
        QVERIFY(station->setPoints.isEmpty());
    }

    void measuredValuesAreShown()
    {
        station->answerOwnReadings();
        QVERIFY(station->open());
        QCOMPARE(measured(0), "0.0"_s);
        QVERIFY(station->round());
        for (int channel = 0; channel < Channels::count; ++channel) {
            QCOMPARE(measured(channel), QString::number(Wire::ownDegC(channel)));
        }
        station->answers[4] = "01M 0512.3E";
        QVERIFY(station->round());
        QCOMPARE(measured(4), "512.3"_s);
    }

    void everyChannelShowsItsOwnError()
    {
        station->answers[2] = "ER";
        station->answers[7] = "ER";
        QVERIFY(station->open());
        QVERIFY(station->round());
        for (int channel = 0; channel < Channels::count; ++channel) {
            const bool hasError = channel == 2 || channel == 7;
            QCOMPARE(measured(channel), hasError ? "----.-"_s : "25"_s);
        }
        station->answers.remove(2);
        QVERIFY(station->round());
        QCOMPARE(measured(2), "25"_s);
    }

    void aChannelNotInUseIsNotReadAndShowsDashes()
    {
        Station::storeInUse({1, 3, 8});
        QVERIFY(station->open());
        QVERIFY(station->round());
        QVERIFY(station->round());
        QCOMPARE(station->reads, (QList<int>{1, 3, 8, 1, 3, 8}));
        for (int channel = 0; channel < Channels::count; ++channel) {
            const bool isInUse = channel == 1 || channel == 3 || channel == 8;
            QCOMPARE(measured(channel), isInUse ? "25"_s : "----.-"_s);
        }
    }

    void aChannelTakenOutOfUseIsSkippedFromThen()
    {
        Station::storeInUse({0, 1});
        QVERIFY(station->open());
        QVERIFY(station->round());
        station->click(cell("TCActive", 0));
        QCOMPARE(measured(0), "25"_s);
        QVERIFY(station->round());
        QCOMPARE(measured(0), "----.-"_s);
        QCOMPARE(station->reads, (QList<int>{0, 1, 1}));
        station->click(cell("TCActive", 0));
        QVERIFY(station->round());
        QCOMPARE(measured(0), "25"_s);
    }

    void aRoundOfRepliesAtOnceTakesFourTicksAChannel()
    {
        QVERIFY(station->open());
        QByteArray before = Wire::toTemperatures;
        for (int channel = 0; channel < Channels::count; ++channel) {
            station->tick(); // read
            QVERIFY(station->adapter.expect(before + Wire::readRequest(channel)));
            station->adapter.send(Wire::reading(50.0) + "\r\n");
            QCOMPARE(measured(channel), "0.0"_s);
            station->tick(); // show
            QCOMPARE(measured(channel), "50"_s);
            QCOMPARE(Station::records(), 0);
            station->tick(2); // ramp step, next channel
            before.clear();
        }
        QCOMPARE(Station::records(), 1);
    }

    void nothingIsSentBeforeTheFirstTick()
    {
        QVERIFY(station->open());
        QVERIFY(station->adapter.expectNothing());
        station->tick();
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
    }

    void switchedOffNothingIsRead()
    {
        QVERIFY(station->open());
        station->togglePolling();
        station->tick(1000);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(measured(0), "0.0"_s);
        station->togglePolling();
        station->tick();
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
    }

    void switchedOffAReplyIsKeptForLater()
    {
        QVERIFY(station->open());
        station->tick();
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
        station->togglePolling();
        station->adapter.send(Wire::reading(77.0) + "\r\n");
        station->tick(100);
        QCOMPARE(measured(0), "0.0"_s);
        station->togglePolling();
        station->tick();
        QCOMPARE(measured(0), "77"_s);
    }

    void switchedOffTheTimeOutStandsStill()
    {
        QVERIFY(station->open());
        station->tick();
        station->togglePolling();
        station->tick(1000);
        station->togglePolling();
        station->tick(300);
        QCOMPARE(measured(0), "0.0"_s);
        station->tick();
        QCOMPARE(measured(0), "----.-"_s);
    }

    void elapsedTimeIsShownEveryTenTicks()
    {
        QVERIFY(station->open());
        station->type(cell("TDeg", 0), "40"_s);
        station->click(cell("RunT", 0));
        QCOMPARE(elapsed(0), "0.0"_s);
        // The tick counter starts one short of a multiple of ten.
        station->tick();
        QCOMPARE(elapsed(0), "   0.00"_s);

        QString shown = "   0.00"_s;
        for (int update = 1; update <= 65; ++update) { // past the counter's wrap at 300, twice
            DrivenClock::advance(90000);
            station->tick(9);
            QCOMPARE(elapsed(0), shown);
            station->tick();
            shown = "%1"_s.arg(update * 1.5, 7, 'f', 2);
            QCOMPARE(elapsed(0), shown);
        }
        QCOMPARE(shown, "  97.50"_s);
        // The other cells have no ramp, and nothing to show.
        QCOMPARE(elapsed(1), "0.0"_s);
    }

    void elapsedTimeStandsStillWhileSwitchedOff()
    {
        QVERIFY(station->open());
        station->type(cell("TDeg", 0), "40"_s);
        station->click(cell("RunT", 0));
        station->tick();
        station->togglePolling();
        DrivenClock::advance(600000);
        station->tick(100);
        QCOMPARE(elapsed(0), "   0.00"_s);
        station->togglePolling();
        station->tick(10);
        QCOMPARE(elapsed(0), "  10.00"_s);
    }

    void elapsedTimeOfASecondRampBeginsAnew()
    {
        QVERIFY(station->open());
        station->type(cell("TDeg", 0), "40"_s);
        station->click(cell("RunT", 0));
        DrivenClock::advance(150000);
        station->tick();
        QCOMPARE(elapsed(0), "   2.50"_s);
        station->click(cell("RunT", 0));
        DrivenClock::advance(60000);
        station->click(cell("RunT", 0));
        station->tick(10);
        QCOMPARE(elapsed(0), "   0.00"_s);
        DrivenClock::advance(30000);
        station->tick(10);
        QCOMPARE(elapsed(0), "   0.50"_s);
    }

    void thePollingTicksEveryTenMilliseconds()
    {
        station.reset();
        Station::storeInUse({});
        station = std::make_unique<Station>(Station::Time::Running);
        QVERIFY(station->open());
        const FiredTimers timers;
        QTRY_VERIFY(Station::records() > 0);
        QCOMPARE(timers.intervals(), "10"_s);
    }

    void elapsedTimeStaysWhenARampIsStopped()
    {
        QVERIFY(station->open());
        station->type(cell("TDeg", 0), "40"_s);
        station->click(cell("RunT", 0));
        DrivenClock::advance(150000);
        station->tick();
        QCOMPARE(elapsed(0), "   2.50"_s);
        station->click(cell("RunT", 0));
        DrivenClock::advance(60000);
        station->tick(20);
        QCOMPARE(elapsed(0), "   2.50"_s);
    }
};

NELVO_TEST_MAIN(CellPollingTest)
#include "cellpolling.moc"
