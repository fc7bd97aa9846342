// Copying, cutting and pasting rows through their menus.

#include "program/numberedsteps.h"
#include "support/messagecapture.h"
#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

namespace {

constexpr int lastRow = ProgramTab::rows - 1;

} // namespace

class ProgramEditingTest : public SharedStationTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SharedStationTest::initTestCase();
        program().show();
    }

    void init() { program().load(numberedSteps()); }

    void pasteBeforeAnyCopyInsertsAnUnusedRow()
    {
        station->close();
        QVERIFY(station->open());
        program().show();
        program().load(numberedSteps());
        QVERIFY(program().pick(0, RowEntry::PasteUp));
        QCOMPARE(program().step(0), ProgramStep());
        QCOMPARE(program().step(1), numberedStep(0));
        QCOMPARE(program().time(0)->text(), "0"_s);
    }

    void copyThenPasteUpTakesTheRowsPlace()
    {
        QVERIFY(program().pick(3, RowEntry::Copy));
        QCOMPARE(program().steps(), numberedSteps());
        QVERIFY(program().pick(10, RowEntry::PasteUp));
        QVector<ProgramStep> expected = numberedSteps();
        expected.insert(10, numberedStep(3));
        expected.removeLast();
        QCOMPARE(program().steps(), expected);
    }

    void pasteDownLandsBelow()
    {
        QVERIFY(program().pick(3, RowEntry::Copy));
        QVERIFY(program().pick(10, RowEntry::PasteDown));
        QVector<ProgramStep> expected = numberedSteps();
        expected.insert(11, numberedStep(3));
        expected.removeLast();
        QCOMPARE(program().steps(), expected);
    }

    void cutMovesTheRestUpAndKeepsTheLastRow()
    {
        QVERIFY(program().pick(5, RowEntry::Cut));
        QVector<ProgramStep> expected = numberedSteps();
        expected.removeAt(5);
        expected.append(numberedStep(lastRow));
        QCOMPARE(program().steps(), expected);

        QVERIFY(program().pick(0, RowEntry::PasteUp));
        expected.insert(0, numberedStep(5));
        expected.removeLast();
        QCOMPARE(program().steps(), expected);
    }

    void cutOfTheLastRowLeavesTheTable()
    {
        QVERIFY(program().pick(lastRow, RowEntry::Cut));
        QCOMPARE(program().steps(), numberedSteps());
        QVERIFY(program().pick(0, RowEntry::PasteUp));
        QCOMPARE(program().step(0), numberedStep(lastRow));
    }

    void pasteUpOnTheLastRowOverwritesIt()
    {
        QVERIFY(program().pick(3, RowEntry::Copy));
        QVERIFY(program().pick(lastRow, RowEntry::PasteUp));
        QVector<ProgramStep> expected = numberedSteps();
        expected[lastRow] = numberedStep(3);
        QCOMPARE(program().steps(), expected);
    }

    void pasteDownOnTheRowBeforeTheLastOverwritesTheLast()
    {
        QVERIFY(program().pick(3, RowEntry::Copy));
        QVERIFY(program().pick(lastRow - 1, RowEntry::PasteDown));
        QVector<ProgramStep> expected = numberedSteps();
        expected[lastRow] = numberedStep(3);
        QCOMPARE(program().steps(), expected);
    }

    void pasteDownOnTheLastRowDoesNothing()
    {
        QVERIFY(program().pick(3, RowEntry::Copy));
        QVERIFY(program().pick(lastRow, RowEntry::PasteDown));
        QCOMPARE(program().steps(), numberedSteps());
    }

    void clipHoldsOneRow()
    {
        QVERIFY(program().pick(3, RowEntry::Copy));
        QVERIFY(program().pick(4, RowEntry::Copy));
        QVERIFY(program().pick(0, RowEntry::PasteUp));
        QVERIFY(program().pick(0, RowEntry::PasteUp));
        QCOMPARE(program().step(0), numberedStep(4));
        QCOMPARE(program().step(1), numberedStep(4));
        QCOMPARE(program().step(2), numberedStep(0));
    }

    void undoSaysSoAndChangesNothing()
    {
        QVERIFY(program().pick(3, RowEntry::Cut));
        const ProgramStep before = program().step(3);
        {
            MessageCapture capture;
            QVERIFY(program().pick(3, RowEntry::Undo));
            LoggedMessage undone;
            for (const LoggedMessage& message : capture.messages()) {
                undone = message.unit == "program"_s ? message : undone;
            }
            QCOMPARE(undone.text, "undo"_s);
            QCOMPARE(undone.category, "default"_s);
            QVERIFY(undone.function.contains("APUndo"_s));
        }
        QCOMPARE(program().step(3), before);
    }

    void slotsWithoutARowDoNothing()
    {
        const MessageCapture log;
        for (const char* slot : {"APCopy", "APCut", "APPasteUp", "APPasteDown", "APUndo"}) {
            callSlot(&station->window(), slot);
        }
        QCOMPARE(MessageCapture::texts(), QStringList());
        QCOMPARE(program().steps(), numberedSteps());
    }
};

NELVO_TEST_MAIN(ProgramEditingTest)
#include "programediting.moc"
