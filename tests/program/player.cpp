// Starting, pausing, holding and stopping a program, as its labels and buttons show it.

#include "support/paintcount.h"
#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

class PlayerTest : public OpenStationTest
{
    Q_OBJECT

private slots:
    void emptyTableStopsOnTheFirstTick()
    {
        program().click("Run");
        QVERIFY(program().isRunning());
        QCOMPARE(program().label("DispTTime02"), "   0.0"_s);
        program().tick();
        QVERIFY(!program().isRunning());
        QCOMPARE(program().button("Run").styleSheet(), olive);
        QCOMPARE(program().marked(), QVector<int>());
    }

    void startShowsRunningAndStartsOnTheFirstTick()
    {
        program().enter(0, "5"_s);
        program().click("Run");
        QCOMPARE(program().button("Run").text(), "Stop"_s);
        QCOMPARE(program().button("Run").styleSheet(), yellow);
        QCOMPARE(program().button("Pause").text(), "Pause"_s);
        QCOMPARE(program().button("Pause").styleSheet(), olive);
        QCOMPARE(program().label("DispCount01"), "   1"_s);
        QCOMPARE(program().label("DispCount02"), "   1"_s);
        QCOMPARE(program().marked(), QVector<int>());
        program().tick();
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().label("DispTime01"), "0"_s);
        QCOMPARE(program().label("DispTime02"), "   5.0"_s);
    }

    void stepEndsOnceItsTimeHasPassed()
    {
        program().enter(0, "0.5"_s);
        program().enter(1, "5"_s);
        program().click("Run");
        program().tick();
        program().tick(500);
        QCOMPARE(program().marked(), QVector<int>{1}); // exactly its time is not over
        program().tick(1);
        QCOMPARE(program().marked(), QVector<int>{2});
    }

    void labelsShowTimesWithOneDecimal()
    {
        program().enter(0, "12.5"_s);
        program().enter(1, "1234.56"_s);
        program().click("Run");
        QCOMPARE(program().label("DispTTime02"), "1247.1"_s);
        program().tick(10);
        program().tick(1260);
        QCOMPARE(program().label("DispTime01"), "   1.3"_s);
        QCOMPARE(program().label("DispTTime01"), "   1.3"_s);
        program().tick(20000);
        QCOMPARE(program().label("DispTime01"), "0"_s);
        QCOMPARE(program().label("DispTime02"), "1234.6"_s);
        QCOMPARE(program().label("DispTTime01"), "  21.3"_s);
        program().tick(100000);
        QCOMPARE(program().label("DispTime01"), " 100.0"_s);
        QCOMPARE(program().label("DispTTime01"), " 121.3"_s);
    }

    void runningTimesDoNotRepaintTheTable()
    {
        program().show();
        program().enter(0, "60"_s);
        program().click("Run");
        program().tick(10);
        const auto tickAndPaint = [this](int times) {
            for (int i = 0; i < times; ++i) {
                program().tick(100);
                QCoreApplication::processEvents();
            }
        };
        program().tick(10000);
        tickAndPaint(10); // the labels have taken their room, and that is painted
        PaintCount tablePaints(*program().time(0));
        PaintCount labelPaints(station->find<QLabel>("DispTime01"_s));
        tablePaints.take();
        labelPaints.take();
        tickAndPaint(10);
        QVERIFY(labelPaints.take() >= 10);
        QCOMPARE(tablePaints.take(), 0);
    }

    void holdPointWaitsForTheOperator()
    {
        program().enter(0, "-1"_s);
        program().shutter(0, 2)->click();
        program().setPoint(0, 1)->setText("40"_s);
        program().enter(1, "5"_s);
        program().click("Run");
        program().tick();
        QTRY_COMPARE(station->masks(), QByteArray("\x04"));
        QVERIFY(program().isWaiting());
        QCOMPARE(program().button("Pause").styleSheet(), yellow);
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().label("DispTime02"), "  -1.0"_s);
        QCOMPARE(station->text(cell("TDeg", 1)), "0.0"_s); // no temperatures
        QVERIFY(!station->isRamping(1));

        for (int i = 0; i < 100; ++i) {
            program().tick(1000);
        }
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().label("DispTime01"), "0"_s);

        program().click("Pause");
        QCOMPARE(program().button("Pause").text(), "Pause"_s);
        QCOMPARE(program().button("Pause").styleSheet(), olive);
        program().tick();
        QCOMPARE(program().marked(), QVector<int>{2});
    }

    void pauseCountsTowardsTheStep()
    {
        program().enter(0, "10"_s);
        program().enter(1, "5"_s);
        program().click("Run");
        program().tick();
        program().tick(2000);
        program().click("Pause");
        QVERIFY(program().isWaiting());
        program().tick(30000);
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().label("DispTime01"), "   2.0"_s);
        program().click("Pause");
        program().tick();
        QCOMPARE(program().marked(), QVector<int>{2});
        QCOMPARE(program().label("DispTTime01"), "  32.0"_s);
    }

    void pauseBeforeTheFirstTickKeepsTheFirstStepFromStarting()
    {
        program().enter(0, "5"_s);
        program().shutter(0, 1)->click();
        program().click("Run");
        program().click("Pause");
        QVERIFY(program().isWaiting());
        for (int i = 0; i < 10; ++i) {
            program().tick(1000);
        }
        QVERIFY(program().isRunning());
        QCOMPARE(program().marked(), QVector<int>());
        QVERIFY(station->adapter.expectNothing());
        program().click("Pause");
        program().tick();
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().label("DispTime01"), "0"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x02)));
    }

    void runShowsTheNewCountsAndLeavesTheOldTimes()
    {
        program().enter(0, "5"_s, "A"_s, "3"_s);
        program().click("Run");
        program().tick();
        program().tick(2500);
        program().click("Run");
        program().enter(0, "7"_s, "A"_s, "4"_s);
        program().click("Run");
        const char* const labels[]
            = {"DispTime01", "DispTime02", "DispTTime01", "DispTTime02", "DispCount01", "DispCount02"};
        QStringList shown;
        for (const char* label : labels) {
            shown += program().label(label).trimmed();
        }
        QCOMPARE(shown, QStringList({"2.5"_s, "5.0"_s, "2.5"_s, "28.0"_s, "1"_s, "4"_s}));
    }

    void pauseShowsAndDoesNothingWhenIdle()
    {
        program().click("Pause");
        QCOMPARE(program().button("Pause").text(), "Pause"_s);
        QCOMPARE(program().button("Pause").styleSheet(), olive);
    }

    void stopKeepsTheMarkAndRestartBeginsAnew()
    {
        program().enter(0, "1"_s, "A"_s, "3"_s);
        program().enter(1, "1"_s, "B"_s);
        program().click("Run");
        program().tick();
        program().tick(1500);
        QCOMPARE(program().label("DispCount01"), "   2"_s);
        program().click("Run");
        QVERIFY(!program().isRunning());
        QCOMPARE(program().marked(), QVector<int>{1});
        QCOMPARE(program().label("DispCount01"), "   2"_s);
        program().click("Run");
        QCOMPARE(program().label("DispCount01"), "   1"_s);
        QCOMPARE(program().play(), QVector<int>({1, 1, 1, 2}));
    }

    void stopWhilePausedThenStartRunsUnpaused()
    {
        program().enter(0, "1"_s);
        program().click("Run");
        program().tick();
        program().click("Pause");
        program().click("Run");
        QVERIFY(!program().isRunning());
        QVERIFY(program().isWaiting()); // stopping leaves everything but the run as it is
        program().click("Run");
        QVERIFY(!program().isWaiting());
        QCOMPARE(program().play(), QVector<int>{1});
    }

    void oneTickStartsOneStepHoweverLate()
    {
        for (int k = 0; k < 5; ++k) {
            program().enter(k, "0.001"_s);
        }
        program().click("Run");
        for (int step = 1; step <= 5; ++step) {
            program().tick(60000);
            QCOMPARE(program().marked(), QVector<int>{step});
        }
        program().tick(60000);
        QVERIFY(!program().isRunning());
    }

    void rowsAreReadWhenTheyAreReached()
    {
        program().enter(0, "1"_s);
        program().enter(1, "1"_s);
        program().click("Run");
        program().tick();
        program().time(0)->setText("0.1"_s); // under way: its time was read
        program().tick(500);
        QCOMPARE(program().marked(), QVector<int>{1});
        program().time(1)->setText("7"_s);
        program().shutter(1, 6)->click();
        program().tick(600);
        QCOMPARE(program().label("DispTime02"), "   7.0"_s);
        QTRY_COMPARE(station->masks(), QByteArray("\x00\x40", 2));
        program().click("Clear");
        program().tick(8000);
        QVERIFY(!program().isRunning());
    }
};

NELVO_TEST_MAIN(PlayerTest)
#include "player.moc"
