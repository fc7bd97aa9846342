#include "program/programwindow.h"

#include "support/messagecapture.h"
#include "support/testmain.h"

#include <QScrollArea>

namespace {

constexpr int lastRow = 199;

ProgramStep numbered(int k)
{
    ProgramStep step;
    for (size_t ch = 0; ch < 9; ++ch) {
        step.setPoints.at(ch) = QString::number(100 * k + static_cast<int>(ch));
    }
    step.shutters.at(static_cast<size_t>(k % 7)) = true;
    step.timeSec = k + 0.5;
    step.group = QStringLiteral("G%1").arg(k / 3);
    step.times = k + 1;
    return step;
}

void fill(ProgramWindow& table)
{
    for (int k = 0; k <= lastRow; ++k) {
        const ProgramStep step = numbered(k);
        for (int ch = 0; ch < 9; ++ch) {
            table.setPoint(k, ch)->setText(step.setPoints.at(static_cast<size_t>(ch)));
        }
        for (int n = 0; n < 7; ++n) {
            if (step.shutters.at(static_cast<size_t>(n))) {
                table.shutter(k, n)->click();
            }
        }
        table.enter(k, QString::number(step.timeSec), step.group, QString::number(step.times));
    }
}

// The first row that differs from `expected`, -1 when none does.
int difference(ProgramWindow& table, const QVector<ProgramStep>& expected)
{
    for (int k = 0; k <= lastRow; ++k) {
        if (table.row(k) != expected[k] || table.stepLabel(k)->text() != QString::number(k + 1)) {
            return k;
        }
    }
    return -1;
}

QVector<ProgramStep> numberedTable()
{
    QVector<ProgramStep> steps;
    for (int k = 0; k <= lastRow; ++k) {
        steps.append(numbered(k));
    }
    return steps;
}

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
    QCOMPARE(table().row(1), numbered(0));
    QCOMPARE(table().time(0)->text(), QStringLiteral("0"));
}

void TestProgramEditing::copyThenPasteUpTakesTheRowsPlace()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QCOMPARE(difference(table(), numberedTable()), -1);
    QVERIFY(pick(table(), 10, RowEntry::PasteUp));
    QVector<ProgramStep> expected = numberedTable();
    expected.insert(10, numbered(3));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::pasteDownLandsBelow()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), 10, RowEntry::PasteDown));
    QVector<ProgramStep> expected = numberedTable();
    expected.insert(11, numbered(3));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::cutMovesTheRestUpAndKeepsTheLastRow()
{
    fill(table());
    QVERIFY(pick(table(), 5, RowEntry::Cut));
    QVector<ProgramStep> expected = numberedTable();
    expected.removeAt(5);
    expected.append(numbered(lastRow));
    QCOMPARE(difference(table(), expected), -1);

    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    expected.insert(0, numbered(5));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::cutOfTheLastRowLeavesTheTable()
{
    fill(table());
    QVERIFY(pick(table(), lastRow, RowEntry::Cut));
    QCOMPARE(difference(table(), numberedTable()), -1);
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), numbered(lastRow));
}

void TestProgramEditing::pasteUpOnTheLastRowOverwritesIt()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow, RowEntry::PasteUp));
    QVector<ProgramStep> expected = numberedTable();
    expected[lastRow] = numbered(3);
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::pasteDownOnTheRowBeforeTheLastOverwritesTheLast()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow - 1, RowEntry::PasteDown));
    QVector<ProgramStep> expected = numberedTable();
    expected[lastRow] = numbered(3);
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramEditing::pasteDownOnTheLastRowDoesNothing()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow, RowEntry::PasteDown));
    QCOMPARE(difference(table(), numberedTable()), -1);
}

void TestProgramEditing::clipHoldsOneRow()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), 4, RowEntry::Copy));
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), numbered(4));
    QCOMPARE(table().row(1), numbered(4));
    QCOMPARE(table().row(2), numbered(0));
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
    QCOMPARE(difference(table(), numberedTable()), -1);
}

NELVO_TEST_MAIN(TestProgramEditing)
#include "programediting.moc"
