#include "program/numberedtable.h"

#include "support/testmain.h"

#include <QSet>

using namespace NumberedTable;

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
    void clearMakesEveryRowUnused();
    void everyRowInSightIsPaintedAfterAChange();

private:
    ProgramWindow& table() { return *shared; }

    // One window for all: building it is the larger part of a test.
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

NELVO_TEST_MAIN(TestProgramTable)
#include "programtable.moc"
