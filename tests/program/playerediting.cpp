// Editing the table while a program plays: rows count as they stand when they are reached, and neither the
// program nor the mark of the row that plays is touched.

#include "program/numberedsteps.h"
#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

class PlayerEditingTest : public OpenStationTest
{
    Q_OBJECT

    // Plays steps of 1 s to 5 s, told apart by their times, up to the start of `step` (from 1).
    void playUpTo(int step)
    {
        for (int row = 0; row < 5; ++row) {
            program().enter(row, QString::number(row + 1), QString::number(row));
            program().shutter(row, row)->click();
        }
        program().click("Run");
        for (int i = 0; i < 100 && program().marked() != QVector<int>{step}; ++i) {
            program().tick(1000);
        }
        QTRY_COMPARE(station->masks().size(), step);
        station->forget();
    }

    // The step that plays ends; the next one shows its time.
    QString timeOfTheNextStep()
    {
        program().tick(10000);
        return program().label("DispTime02");
    }

private slots:
    void aGroupGivenWhileItsStepIsStillToComeJoinsTheBlock()
    {
        program().enter(0, "1"_s, "A"_s, "2"_s);
        program().enter(1, "1"_s, "B"_s);
        program().click("Run");
        program().tick();
        program().group(1)->setText("A"_s);
        QCOMPARE(program().play(), QVector<int>({2, 1, 2}));
    }

    void aGroupChangedInTheMiddleEndsTheBlock()
    {
        program().enter(0, "1"_s, "A"_s, "2"_s);
        program().enter(1, "1"_s, "A"_s);
        program().click("Run");
        program().tick();
        program().group(1)->setText("B"_s);
        QCOMPARE(program().play(), QVector<int>({1, 2}));
    }

    void theGroupOfTheStepThatPlaysCountsWhenItEnds()
    {
        program().enter(0, "1"_s, "A"_s, "2"_s);
        program().enter(1, "1"_s, "A"_s);
        program().click("Run");
        program().tick();
        program().group(0)->setText("a"_s);
        QCOMPARE(program().play(), QVector<int>({1, 2}));
    }

    void clearLeavesTheProgramPlaying()
    {
        playUpTo(2);
        program().click("Clear");
        QVERIFY(program().isRunning());
        QCOMPARE(program().marked(), QVector<int>{2});
        program().tick(1900); // the step's time was read when it started
        QVERIFY(program().isRunning());
        QVERIFY(station->adapter.expectNothing());
        program().tick(200);
        QVERIFY(!program().isRunning()); // its next row ends the program now
        QCOMPARE(program().marked(), QVector<int>());
    }

    void loadLeavesTheProgramPlaying()
    {
        playUpTo(2);
        QVector<ProgramStep> others(5);
        for (ProgramStep& step : others) {
            step.timeSec = 77.0;
            step.shutters[6] = true;
        }
        program().load(others);
        QVERIFY(program().isRunning());
        QCOMPARE(program().marked(), QVector<int>{2});
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(timeOfTheNextStep(), "  77.0"_s);
        QCOMPARE(program().marked(), QVector<int>{3});
        QVERIFY(station->adapter.expect(Wire::shutters(0x40)));
    }

    void cutMovesTheNextStepsUp()
    {
        program().show();
        playUpTo(2);
        QVERIFY(program().pick(0, RowEntry::Cut));
        QVERIFY(program().isRunning());
        QCOMPARE(program().marked(), QVector<int>{2});
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(timeOfTheNextStep(), "   4.0"_s);
        QCOMPARE(program().marked(), QVector<int>{3});
        QVERIFY(station->adapter.expect(Wire::shutters(0x08)));
    }

    void pasteMovesTheNextStepsDown()
    {
        program().show();
        QVERIFY(program().pick(10, RowEntry::Copy));
        playUpTo(2);
        QVERIFY(program().pick(0, RowEntry::PasteUp));
        QVERIFY(program().isRunning());
        QCOMPARE(program().marked(), QVector<int>{2});
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(timeOfTheNextStep(), "   2.0"_s);
        QCOMPARE(program().marked(), QVector<int>{3});
        QVERIFY(station->adapter.expect(Wire::shutters(0x02)));
    }

    void aMarkStaysAfterStopAndAfterRun()
    {
        playUpTo(3);
        program().click("Run");
        QCOMPARE(program().marked(), QVector<int>{3});
        program().click("Clear");
        program().load(numberedSteps());
        QCOMPARE(program().marked(), QVector<int>{3});
        program().click("Clear");
        program().enter(0, "1"_s);
        program().click("Run");
        program().tick();
        QCOMPARE(program().marked(), (QVector<int>{1, 3}));
        program().tick(2000);
        QVERIFY(!program().isRunning());
        QCOMPARE(program().marked(), QVector<int>{3});
    }
};

NELVO_TEST_MAIN(PlayerEditingTest)
#include "playerediting.moc"
