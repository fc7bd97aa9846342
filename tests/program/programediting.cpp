#include "program/numberedtable.h"

#include "support/messagecapture.h"
#include "support/testmain.h"

#include <QScrollArea>

using namespace NumberedTable;

namespace {

// A row out of sight cannot be clicked.
bool pick(ProgramWindow& table, int row, RowEntry entry)
{
    table.window()
        .findChild<QScrollArea*>(QStringLiteral("scrollArea"))
        ->ensureWidgetVisible(table.stepLabel(row));
    QCoreApplication::processEvents();
    return pickFromMenu(*table.stepLabel(row), entry);
}

} // namespace

/// Copying, cutting and pasting rows through their menus.
class TestProgramEditing : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void pasteBeforeAnyCopyInsertsAnUnusedRow();
    void copyThenPasteUpTakesTheRowsPlace();
    void pasteDownLandsBelow();
    void cutMovesTheRestUpAndKeepsTheLastRow();
    void cutOfTheLastRowLeavesTheTable();
    void pasteUpOnTheLastRowOverwritesIt();
    void pasteDownOnTheRowBeforeTheLastOverwritesTheLast();
    void pasteDownOnTheLastRowDoesNothing();
    void clipHoldsOneRow();
    void undoSaysSoAndChangesNothing();
    void slotsWithoutARowDoNothing();

private:
    ProgramWindow& table() { return *shared; }

    // One window for all: building it is the larger part of a test. What a test leaves on the clip stays.
    std::unique_ptr<ProgramWindow> shared;
};

void TestProgramEditing::initTestCase()
{
    shared = std::make_unique<ProgramWindow>();
    shared->show();
}

void TestProgramEditing::cleanupTestCase()
{
    shared.reset();
}

void TestProgramEditing::init()
{
    table().button("ProgClear")->click();
}

void TestProgramEditing::pasteBeforeAnyCopyInsertsAnUnusedRow()
{
    fill(table());
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), ProgramStep());
    QCOMPARE(table().row(1), row(0));
    QCOMPARE(table().time(0)->text(), QStringLiteral("0"));
}

void TestProgramEditing::copyThenPasteUpTakesTheRowsPlace()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QCOMPARE(difference(table(), rows()), -1);
    QVERIFY(pick(table(), 10, RowEntry::PasteUp));
    QVector<ProgramStep> expected = rows();
    expected.insert(10, row(3));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::pasteDownLandsBelow()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), 10, RowEntry::PasteDown));
    QVector<ProgramStep> expected = rows();
    expected.insert(11, row(3));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::cutMovesTheRestUpAndKeepsTheLastRow()
{
    fill(table());
    QVERIFY(pick(table(), 5, RowEntry::Cut));
    QVector<ProgramStep> expected = rows();
    expected.removeAt(5);
    expected.append(row(lastRow));
    QCOMPARE(difference(table(), expected), -1);

    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    expected.insert(0, row(5));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::cutOfTheLastRowLeavesTheTable()
{
    fill(table());
    QVERIFY(pick(table(), lastRow, RowEntry::Cut));
    QCOMPARE(difference(table(), rows()), -1);
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), row(lastRow));
}

void TestProgramEditing::pasteUpOnTheLastRowOverwritesIt()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow, RowEntry::PasteUp));
    QVector<ProgramStep> expected = rows();
    expected[lastRow] = row(3);
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::pasteDownOnTheRowBeforeTheLastOverwritesTheLast()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow - 1, RowEntry::PasteDown));
    QVector<ProgramStep> expected = rows();
    expected[lastRow] = row(3);
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::pasteDownOnTheLastRowDoesNothing()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow, RowEntry::PasteDown));
    QCOMPARE(difference(table(), rows()), -1);
}

void TestProgramEditing::clipHoldsOneRow()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), 4, RowEntry::Copy));
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), row(4));
    QCOMPARE(table().row(1), row(4));
    QCOMPARE(table().row(2), row(0));
}

void TestProgramEditing::undoSaysSoAndChangesNothing()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Cut));
    const ProgramStep before = table().row(3);
    {
        MessageCapture capture;
        QVERIFY(pick(table(), 3, RowEntry::Undo));
        LoggedMessage undone;
        for (const LoggedMessage& message : capture.messages()) {
            undone = message.unit == QLatin1String("program") ? message : undone;
        }
        QCOMPARE(undone.text, QStringLiteral("undo"));
        QCOMPARE(undone.category, QStringLiteral("default"));
        QVERIFY(undone.function.contains(QLatin1String("APUndo")));
    }
    QCOMPARE(table().row(3), before);
}

void TestProgramEditing::slotsWithoutARowDoNothing()
{
    fill(table());
    const MessageCapture log;
    for (const char* slot : {"APCopy", "APCut", "APPasteUp", "APPasteDown", "APUndo"}) {
        callSlot(&table().window(), slot);
    }
    QCOMPARE(MessageCapture::texts(), QStringList());
    QCOMPARE(difference(table(), rows()), -1);
}

NELVO_TEST_MAIN(TestProgramEditing)
#include "programediting.moc"
