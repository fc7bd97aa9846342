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

class TestProgramTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void tableHasTwoHundredUnusedRows();
    void headersNameTheColumns();
    void barStartsIdle();
    void menuOpensOnTheStepOnly();
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
    void clearMakesEveryRowUnused();
    void everyRowInSightIsPaintedAfterAChange();
    void slotsWithoutARowDoNothing();

private:
    ProgramWindow& table() { return *shared; }

    // One window for all: building it is the larger part of a test. What a test leaves on the clip stays.
    std::unique_ptr<ProgramWindow> shared;
};

void TestProgramTable::initTestCase()
{
    shared = std::make_unique<ProgramWindow>();
    shared->show();
}

void TestProgramTable::cleanupTestCase()
{
    shared.reset();
}

void TestProgramTable::init()
{
    table().button("ProgClear")->click();
}

void TestProgramTable::tableHasTwoHundredUnusedRows()
{
    QCOMPARE(difference(table(), QVector<ProgramStep>(200)), -1);
    QVERIFY(table().grid()->itemAtPosition(202, 0) == nullptr);
    QCOMPARE(table().grid()->horizontalSpacing(), 3);
    QCOMPARE(table().grid()->verticalSpacing(), 4);
}

void TestProgramTable::headersNameTheColumns()
{
    struct Header
    {
        const char* text;
        int row;
        int column;
        int columns;
        const char* colour;
    };
    const Header headers[] = {{"Cell Tmp. and Open/Close", 0, 1, 7, "240, 255, 240"},
        {"Sub. Tmp.", 0, 8, 2, "255, 240, 240"}, {"Seq. Ctrl.", 0, 10, 3, "240, 250, 255"},
        {"Step", 1, 0, 1, "240, 250, 255"}, {"Be", 1, 1, 1, "240, 255, 240"},
        {"Ga", 1, 2, 1, "240, 255, 240"}, {"Si", 1, 3, 1, "240, 255, 240"}, {"As4", 1, 4, 1, "240, 255, 240"},
        {"Al", 1, 5, 1, "240, 255, 240"}, {"In", 1, 6, 1, "240, 255, 240"}, {"As7", 1, 7, 1, "240, 255, 240"},
        {"Main Ch", 1, 8, 1, "255, 240, 240"}, {"Pre Ch", 1, 9, 1, "255, 240, 240"},
        {"Time[sec]", 1, 10, 1, "240, 250, 255"}, {"Group", 1, 11, 1, "240, 250, 255"},
        {"Times", 1, 12, 1, "240, 250, 255"}};
    for (const Header& header : headers) {
        QLayoutItem* item = table().grid()->itemAtPosition(header.row, header.column);
        auto* label = qobject_cast<QLabel*>(item->widget());
        QCOMPARE(label->text(), QLatin1String(header.text));
        QCOMPARE(label->styleSheet(),
            QStringLiteral("background-color: rgb(%1);").arg(QLatin1String(header.colour)));
        QCOMPARE(label->frameShape(), QFrame::StyledPanel);
        QVERIFY(label->alignment() & Qt::AlignHCenter);
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        table().grid()->getItemPosition(table().grid()->indexOf(label), &row, &column, &rows, &columns);
        QCOMPARE(QList<int>({row, column, rows, columns}),
            QList<int>({header.row, header.column, 1, header.columns}));
    }
    QVERIFY(table().grid()->itemAtPosition(0, 0) == nullptr);
}

void TestProgramTable::barStartsIdle()
{
    const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");
    QCOMPARE(table().button("ProgRun")->text(), QStringLiteral("Run"));
    QCOMPARE(table().button("ProgRun")->styleSheet(), olive);
    QCOMPARE(table().button("ProgPause")->text(), QStringLiteral("Pause"));
    QCOMPARE(table().button("ProgPause")->styleSheet(), olive);
    QCOMPARE(table().marked(), QVector<int>());
}

void TestProgramTable::menuOpensOnTheStepOnly()
{
    const QStringList entries{QStringLiteral("Copy"), QStringLiteral("Cut"), QStringLiteral("Paste(up)"),
        QStringLiteral("Paste(down)"), QStringLiteral("Undo")};
    QCOMPARE(menuOf(*table().stepLabel(0)), entries);
    QCOMPARE(menuOf(*table().stepLabel(3)), entries);
    QVERIFY(menuOf(*table().shutter(0, 0)) != entries);
    QVERIFY(menuOf(*table().setPoint(0, 0)) != entries);
    QVERIFY(menuOf(*table().time(0)) != entries);
}

void TestProgramTable::copyThenPasteUpTakesTheRowsPlace()
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

void TestProgramTable::pasteDownLandsBelow()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), 10, RowEntry::PasteDown));
    QVector<ProgramStep> expected = numberedTable();
    expected.insert(11, numbered(3));
    expected.removeLast();
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramTable::cutMovesTheRestUpAndKeepsTheLastRow()
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

void TestProgramTable::cutOfTheLastRowLeavesTheTable()
{
    fill(table());
    QVERIFY(pick(table(), lastRow, RowEntry::Cut));
    QCOMPARE(difference(table(), numberedTable()), -1);
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), numbered(lastRow));
}

void TestProgramTable::pasteUpOnTheLastRowOverwritesIt()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow, RowEntry::PasteUp));
    QVector<ProgramStep> expected = numberedTable();
    expected[lastRow] = numbered(3);
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramTable::pasteDownOnTheRowBeforeTheLastOverwritesTheLast()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow - 1, RowEntry::PasteDown));
    QVector<ProgramStep> expected = numberedTable();
    expected[lastRow] = numbered(3);
    QCOMPARE(difference(table(), expected), -1);
}

void TestProgramTable::pasteDownOnTheLastRowDoesNothing()
{
    fill(table());
    QVERIFY(pick(table(), 3, RowEntry::Copy));
    QVERIFY(pick(table(), lastRow, RowEntry::PasteDown));
    QCOMPARE(difference(table(), numberedTable()), -1);
}

void TestProgramTable::pasteBeforeAnyCopyInsertsAnUnusedRow()
{
    fill(table());
    QVERIFY(pick(table(), 0, RowEntry::PasteUp));
    QCOMPARE(table().row(0), ProgramStep());
    QCOMPARE(table().row(1), numbered(0));
    QCOMPARE(table().time(0)->text(), QStringLiteral("0"));
}

void TestProgramTable::clipHoldsOneRow()
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

void TestProgramTable::undoSaysSoAndChangesNothing()
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

void TestProgramTable::clearMakesEveryRowUnused()
{
    fill(table());
    QTest::mouseClick(table().button("ProgClear"), Qt::LeftButton);
    QCOMPARE(difference(table(), QVector<ProgramStep>(200)), -1);
}

namespace {

class PaintCount : public QObject
{
public:
    QSet<QObject*> painted;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted.insert(receiver);
        }
        return false;
    }
};

} // namespace

void TestProgramTable::everyRowInSightIsPaintedAfterAChange()
{
    fill(table());
    QCoreApplication::processEvents();
    PaintCount count;
    QCoreApplication::instance()->installEventFilter(&count);
    QTest::mouseClick(table().button("ProgClear"), Qt::LeftButton);
    QTRY_VERIFY(count.painted.contains(table().time(0)));
    QCoreApplication::instance()->removeEventFilter(&count);

    int inSight = 0;
    for (int k = 0; k < 200; ++k) {
        const QList<QWidget*> changed{table().setPoint(k, 1), table().setPoint(k, 8),
            table().shutter(k, k % 7), table().time(k), table().group(k), table().times(k)};
        for (QWidget* widget : changed) {
            QVERIFY(widget->updatesEnabled());
            if (!widget->visibleRegion().isEmpty()) {
                ++inSight;
                QVERIFY2(count.painted.contains(widget), qPrintable(QString::number(k)));
            }
        }
    }
    QVERIFY(inSight > 60);
}

void TestProgramTable::slotsWithoutARowDoNothing()
{
    fill(table());
    for (const char* slot : {"APCopy", "APCut", "APPasteUp", "APPasteDown"}) {
        callSlot(&table().window(), slot);
    }
    QCOMPARE(difference(table(), numberedTable()), -1);
}

NELVO_TEST_MAIN(TestProgramTable)
#include "tst_programtable.moc"
