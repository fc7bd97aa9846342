// What a step's start does to shutters and cells, and the player in real time.

#include "support/stationtest.h"
#include "support/testmain.h"

#include <QTimer>

using namespace TestText;

class StepStartTest : public OpenStationTest
{
    Q_OBJECT

    // No channel is in use, so that no reply that nobody sends keeps the bus.
    bool openInRealTime()
    {
        station.reset();
        Station::storeInUse({});
        station = std::make_unique<Station>(Station::Time::Running);
        return station->open();
    }

private slots:
    void shuttersFollowEveryStep()
    {
        for (int k = 0; k < Channels::shutterCount; ++k) {
            program().enter(k, "0.02"_s);
            program().shutter(k, k)->click();
        }
        program().shutter(6, 0)->click();
        program().click("Run");
        QCOMPARE(program().play().size(), Channels::shutterCount);
        QTRY_COMPARE(station->masks(), QByteArray("\x01\x02\x04\x08\x10\x20\x41"));
        QCOMPARE(station->text(cell("CS", 0)), "Open"_s);
        QCOMPARE(station->text(cell("CS", 5)), "Close"_s);
        QCOMPARE(station->text(cell("CS", 6)), "Open"_s);
    }

    void wantedShuttersAreNotTouched()
    {
        station->click(cell("NS", 1));
        program().enter(0, "1"_s);
        program().shutter(0, 0)->click();
        program().click("Run");
        program().tick();
        QCOMPARE(station->text(cell("CS", 0)), "Open"_s);
        QCOMPARE(station->text(cell("NS", 0)), "Close"_s);
        QCOMPARE(station->text(cell("NS", 1)), "Open"_s);
    }

    void rampLastsAsLongAsTheStep()
    {
        program().enter(0, "100"_s);
        for (int ch = 0; ch < Channels::count; ++ch) {
            program().setPoint(0, ch)->setText(QString::number(10 + ch));
        }
        program().click("Run");
        program().tick();
        for (int ch = 0; ch < Channels::count; ++ch) {
            QCOMPARE(station->text(cell("TDeg", ch)), QString::number(10 + ch));
            QCOMPARE(station->text(cell("DTime", ch)), "1.66667"_s);
            QVERIFY(station->isRamping(ch));
        }
    }

    void setPointGoesOverUnchanged()
    {
        program().enter(0, "60"_s);
        program().setPoint(0, 0)->setText(" 0040.50"_s);
        program().click("Run");
        program().tick();
        QCOMPARE(station->text(cell("TDeg", 0)), " 0040.50"_s);
        QCOMPARE(station->text(cell("DTime", 0)), "1"_s);
    }

    void zeroAndNegativeSetPointsLeaveTheChannelAlone()
    {
        program().enter(0, "60"_s);
        program().setPoint(0, 0)->setText("40"_s);
        program().enter(1, "30"_s);
        program().setPoint(1, 1)->setText("-5"_s);
        program().setPoint(1, 2)->setText("warm"_s);
        program().setPoint(1, 3)->setText("inf"_s);
        program().click("Run");
        program().tick();
        program().tick(60001);
        QCOMPARE(program().marked(), QVector<int>{2});
        // The ramp of the step before goes on.
        QCOMPARE(station->text(cell("TDeg", 0)), "40"_s);
        QCOMPARE(station->text(cell("DTime", 0)), "1"_s);
        QCOMPARE(station->text(cell("RunT", 0)), "Stop"_s);
        for (const int channel : {1, 2, 3}) {
            QCOMPARE(station->text(cell("TDeg", channel)), "0.0"_s);
            QCOMPARE(station->text(cell("DTime", channel)), "10.0"_s);
            QCOMPARE(station->text(cell("RunT", channel)), "Run"_s);
        }
    }

    void runningRampIsStartedAnew()
    {
        program().enter(0, "60"_s);
        program().setPoint(0, 0)->setText("40"_s);
        program().enter(1, "120"_s);
        program().setPoint(1, 0)->setText("60"_s);
        program().click("Run");
        program().tick();
        program().tick(60001);
        QCOMPARE(station->text(cell("TDeg", 0)), "60"_s);
        QCOMPARE(station->text(cell("DTime", 0)), "2"_s);
        QCOMPARE(station->text(cell("RunT", 0)), "Stop"_s);
    }

    void channelNotInUseIsRampedToo()
    {
        station->click(cell("TCActive", 2));
        QCOMPARE(station->text(cell("TCActive", 2)), "NotInUse"_s);
        program().enter(0, "60"_s);
        program().setPoint(0, 2)->setText("40"_s);
        program().click("Run");
        program().tick();
        QCOMPARE(station->text(cell("RunT", 2)), "Stop"_s);
    }

    void tooFastARiseIsRefusedAndTheProgramGoesOn()
    {
        program().enter(0, "1"_s);
        program().setPoint(0, 0)->setText("40"_s);
        program().shutter(0, 0)->click();
        program().click("Run");
        program().tick();
        QCOMPARE(station->statusBar(),
            "The temperature rise up rate should be less than 50 deg-C per min for the cell [0:Be]."_s);
        QCOMPARE(station->text(cell("RunT", 0)), "Run"_s);
        QTRY_COMPARE(station->masks(), QByteArray("\x01"));
        QCOMPARE(program().marked(), QVector<int>{1});
    }

    void aStepThatIsRefusedEndsTheRampBeforeIt_data()
    {
        QTest::addColumn<QString>("timeSec");
        QTest::addColumn<QString>("setPoint");
        QTest::newRow("too fast a rise") << "1"_s
                                         << "400"_s;
        QTest::newRow("no time") << "1e-310"_s
                                 << "40"_s;
    }

    // The button tells the truth: the cell is idle, and the next press starts a ramp.
    void aStepThatIsRefusedEndsTheRampBeforeIt()
    {
        QFETCH(QString, timeSec);
        QFETCH(QString, setPoint);
        program().enter(0, "60"_s);
        program().setPoint(0, 0)->setText("40"_s);
        program().enter(1, timeSec);
        program().setPoint(1, 0)->setText(setPoint);
        program().enter(2, "600"_s);
        program().click("Run");
        program().tick();
        QVERIFY(station->isRamping(0));
        program().tick(60001);
        QVERIFY(station->statusBar().contains("[0:Be]"_s));
        QCOMPARE(station->states("RunT", "Stop"_s, "Run"_s), "xxxxxxxxx"_s);
        for (int round = 0; round < 3; ++round) {
            DrivenClock::advance(60001);
            QVERIFY(station->round());
        }
        QCOMPARE(station->setPoints, QList<QByteArray>());
        station->pressRun(0, "40"_s, "10"_s);
        QVERIFY(station->isRamping(0));
    }

    void stopLeavesShuttersAndRamps()
    {
        program().enter(0, "60"_s);
        program().setPoint(0, 0)->setText("40"_s);
        program().shutter(0, 0)->click();
        program().click("Run");
        program().tick();
        QVERIFY(station->adapter.expect(Wire::shutters(0x01)));
        program().click("Run");
        QVERIFY(!program().isRunning());
        QCOMPARE(station->text(cell("RunT", 0)), "Stop"_s);
        QCOMPARE(station->text(cell("CS", 0)), "Open"_s);
        QVERIFY(station->adapter.expectNothing());
    }

    void shortProgramInRealTime()
    {
        QVERIFY(openInRealTime());
        for (int k = 0; k < 3; ++k) {
            program().enter(k, "0.1"_s, "A"_s, "2"_s);
            program().shutter(k, k)->click();
        }
        QElapsedTimer timer;
        timer.start();
        program().click("Run");
        QTRY_VERIFY(!program().isRunning());
        QVERIFY(timer.elapsed() >= 600);
        QTRY_COMPARE(station->masks(), QByteArray("\x01\x02\x04\x01\x02\x04"));
        QCOMPARE(program().label("DispTTime02"), "   0.6"_s);
    }

    void stopEndsTheProgramForGood()
    {
        QVERIFY(openInRealTime());
        for (int k = 0; k < 5; ++k) {
            program().enter(k, k < 2 ? "0.05"_s : "0.1"_s);
            program().shutter(k, k)->click();
        }
        program().click("Run");
        QTRY_COMPARE(program().marked(), QVector<int>{3});
        program().click("Run");
        const QByteArray masks("\x01\x02\x04");
        QTRY_COMPARE(station->masks(), masks);
        const QString time = program().label("DispTTime01");
        // Two polling rounds later, more than twice the step's time, nothing has moved on.
        const int records = Station::records();
        QTRY_VERIFY(Station::records() > records + 1);
        QCOMPARE(program().marked(), QVector<int>{3});
        QCOMPARE(program().label("DispTTime01"), time);
        QCOMPARE(station->masks(), masks);
        QVERIFY(!program().isRunning());
    }

    void aProgramTicksEveryTenMilliseconds()
    {
        QVERIFY(openInRealTime());
        program().enter(0, "0.1"_s);
        const FiredTimers timers;
        program().click("Run");
        QTRY_VERIFY(!program().isRunning());
        QCOMPARE(timers.intervals(), "10"_s);
    }

    void endlessShortStepsLeaveTheWindowAlive()
    {
        QVERIFY(openInRealTime());
        program().show();
        for (int k = 0; k < ProgramTab::rows; ++k) {
            program().enter(k, "0.001"_s, QString::number(k / 2), "2147483647"_s);
        }
        program().click("Run");
        int idleTurns = 0;
        QTimer other;
        connect(&other, &QTimer::timeout, this, [&idleTurns] { ++idleTurns; });
        other.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(idleTurns > 200 && station->masks().size() > 20, 60000);
        program().click("Run");
        QVERIFY(!program().isRunning());
    }
};

NELVO_TEST_MAIN(StepStartTest)
#include "stepstart.moc"
