// The player's way through groups and repeats, and the total time, as the labels show them.

#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

class PlayerWalkTest : public OpenStationTest
{
    Q_OBJECT

private slots:
    void groupIsPlayedThreeTimes()
    {
        program().enter(0, "0.5"_s, "A"_s, "3"_s);
        program().enter(1, "0.25"_s, "A"_s);
        program().enter(2, "1.25"_s, "A"_s);
        program().click("Run");
        QCOMPARE(program().label("DispTTime02"), "   6.0"_s);
        QStringList counts;
        QVector<int> steps;
        for (int i = 0; i < 10000 && program().isRunning(); ++i) {
            program().tick();
            const QString count = program().label("DispCount01") + program().label("DispCount02");
            if (counts.isEmpty() || counts.last() != count) {
                counts.append(count);
            }
            if (program().isRunning() && program().label("DispTime01") == "0"_s) {
                steps += program().marked();
            }
        }
        QCOMPARE(steps, QVector<int>({1, 2, 3, 1, 2, 3, 1, 2, 3}));
        // At the end the next block, of the row that ends the program, has been entered.
        QCOMPARE(counts, QStringList({"   1   3"_s, "   2   3"_s, "   3   3"_s, "   1   1"_s}));
    }

    void timesOfALaterRowHasNoEffect()
    {
        program().enter(0, "0.1"_s, "A"_s, "1"_s);
        program().enter(1, "0.1"_s, "A"_s, "9"_s);
        program().click("Run");
        QCOMPARE(program().label("DispTTime02"), "   0.2"_s);
        QCOMPARE(program().play(), QVector<int>({1, 2}));
    }

    void neighboursWithTheSameGroupAreOneBlock()
    {
        program().enter(0, "0.1"_s, "A"_s, "2"_s);
        program().enter(1, "0.1"_s, "A"_s, "3"_s);
        program().enter(2, "0.1"_s, "a"_s, "2"_s);
        program().click("Run");
        QCOMPARE(program().play(), QVector<int>({1, 2, 1, 2, 3, 3}));
    }

    void repeatCountBelowOneRunsOnce_data()
    {
        QTest::addColumn<QString>("times");
        for (const char* times : {"0", "-5", "many", ""}) {
            QTest::newRow(times) << QString::fromLatin1(times);
        }
    }

    void repeatCountBelowOneRunsOnce()
    {
        QFETCH(QString, times);
        program().enter(0, "0.1"_s, "A"_s, times);
        program().enter(1, "0.1"_s, "B"_s, "2"_s);
        program().click("Run");
        QCOMPARE(program().label("DispCount01"), "----"_s);
        QCOMPARE(program().label("DispCount02"), "----"_s);
        QCOMPARE(program().label("DispTTime02"), "   0.3"_s);
        QCOMPARE(program().play(), QVector<int>({1, 2, 2}));
    }

    void lastRowIsPlayedButNotCounted()
    {
        for (int k = 0; k < ProgramTab::rows - 1; ++k) {
            program().enter(k, "0.01"_s);
        }
        program().enter(ProgramTab::rows - 1, "5"_s);
        program().click("Run");
        QCOMPARE(program().label("DispTTime02"), "   2.0"_s); // 1.99, and not the 5 of the last row
        const QVector<int> steps = program().play();
        QCOMPARE(steps.size(), ProgramTab::rows);
        QCOMPARE(steps.last(), ProgramTab::rows);
        QVERIFY(!program().isRunning());
        QCOMPARE(program().marked(), QVector<int>());
    }

    void groupAtTheEndOfTheTableIsNotRepeated()
    {
        for (int k = 0; k < ProgramTab::rows; ++k) {
            program().enter(k, "0.01"_s, "A"_s, "5"_s);
        }
        program().click("Run");
        QCOMPARE(program().play().size(), ProgramTab::rows);
    }

    void textThatIsNoNumberEndsTheProgram()
    {
        program().enter(0, "0.1"_s);
        program().enter(1, "a while"_s);
        program().enter(2, "0.1"_s);
        program().click("Run");
        QCOMPARE(program().label("DispTTime02"), "   0.1"_s);
        QCOMPARE(program().play(), QVector<int>{1});
    }

    void checkButtonShowsTheTotal()
    {
        program().enter(0, "10"_s, "A"_s, "4"_s);
        program().enter(1, "-1"_s, "A"_s);
        program().enter(2, "2.5"_s);
        program().click("Check");
        QCOMPARE(program().label("DispTTime02"), "  42.5"_s);
        QVERIFY(!program().isRunning());
    }

    void checkWhileRunningLeavesTheRunAlone()
    {
        program().enter(0, "0.1"_s, "A"_s, "3"_s);
        program().enter(1, "0.1"_s, "B"_s);
        program().click("Run");
        QCOMPARE(program().play(15), QVector<int>({1, 1}));
        program().click("Check");
        QCOMPARE(program().label("DispCount01"), "   2"_s);
        QCOMPARE(program().play(), QVector<int>({1, 2}));
    }

    void checkOfHugeRepeatsAnswersAtOnce()
    {
        for (int k = 0; k < ProgramTab::rows - 1; ++k) {
            program().enter(k, "1"_s, QString::number(k), "2147483647"_s);
        }
        QElapsedTimer timer;
        timer.start();
        program().click("Check");
        QCOMPARE(program().label("DispTTime02"), "427349245753.0"_s);
        for (int k = 0; k < ProgramTab::rows - 1; ++k) {
            program().time(k)->setText("-1"_s);
        }
        program().click("Check");
        QCOMPARE(program().label("DispTTime02"), "   0.0"_s);
        QVERIFY(timer.elapsed() < 2000);
    }

    void repeatCountIsReadWhenTheBlockIsEntered()
    {
        program().enter(0, "0.1"_s, "A"_s, "2"_s);
        program().enter(1, "0.1"_s, "B"_s, "1"_s);
        program().click("Run");
        program().tick();
        program().times(0)->setText("50"_s);
        program().times(1)->setText("3"_s);
        QCOMPARE(program().play(), QVector<int>({1, 2, 2, 2}));
    }
};

NELVO_TEST_MAIN(PlayerWalkTest)
#include "playerwalk.moc"
