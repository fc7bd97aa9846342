// The program table as it comes up, its headings, its bar and its menus.

#include "program/numberedsteps.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QSet>

using namespace TestText;

namespace {

// What is painted while it lives.
class Painted : public QObject
{
public:
    Painted() { QCoreApplication::instance()->installEventFilter(this); }
    bool contains(QWidget* widget) const { return painted.contains(widget); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted.insert(receiver);
        }
        return false;
    }

private:
    QSet<QObject*> painted;
};

} // namespace

class ProgramTableTest : public SharedStationTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SharedStationTest::initTestCase();
        program().show();
    }

    void init() { program().click("Clear"); }

    void tableHasTwoHundredUnusedRows()
    {
        QCOMPARE(program().steps(), QVector<ProgramStep>(ProgramTab::rows));
        QVERIFY(program().grid().itemAtPosition(2 + ProgramTab::rows, 0) == nullptr);
        QCOMPARE(program().grid().horizontalSpacing(), 3);
        QCOMPARE(program().grid().verticalSpacing(), 4);
    }

    void headersNameTheColumns()
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
            {"Ga", 1, 2, 1, "240, 255, 240"}, {"Si", 1, 3, 1, "240, 255, 240"},
            {"As4", 1, 4, 1, "240, 255, 240"}, {"Al", 1, 5, 1, "240, 255, 240"},
            {"In", 1, 6, 1, "240, 255, 240"}, {"As7", 1, 7, 1, "240, 255, 240"},
            {"Main Ch", 1, 8, 1, "255, 240, 240"}, {"Pre Ch", 1, 9, 1, "255, 240, 240"},
            {"Time[sec]", 1, 10, 1, "240, 250, 255"}, {"Group", 1, 11, 1, "240, 250, 255"},
            {"Times", 1, 12, 1, "240, 250, 255"}};
        for (const Header& header : headers) {
            QLayoutItem* item = program().grid().itemAtPosition(header.row, header.column);
            auto* label = qobject_cast<QLabel*>(item->widget());
            QCOMPARE(label->text(), QLatin1String(header.text));
            QCOMPARE(label->styleSheet(), "background-color: rgb(%1);"_s.arg(QLatin1String(header.colour)));
            QCOMPARE(label->frameShape(), QFrame::StyledPanel);
            QVERIFY(label->alignment() & Qt::AlignHCenter);
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            program().grid().getItemPosition(program().grid().indexOf(label), &row, &column, &rows, &columns);
            QCOMPARE(QList<int>({row, column, rows, columns}),
                QList<int>({header.row, header.column, 1, header.columns}));
        }
        QVERIFY(program().grid().itemAtPosition(0, 0) == nullptr);
    }

    void barStartsIdle()
    {
        QCOMPARE(program().button("Run").text(), "Run"_s);
        QCOMPARE(program().button("Run").styleSheet(), olive);
        QCOMPARE(program().button("Pause").text(), "Pause"_s);
        QCOMPARE(program().button("Pause").styleSheet(), olive);
        QCOMPARE(program().marked(), QVector<int>());
    }

    void menuOpensOnTheStepOnly()
    {
        const QStringList entries{"Copy"_s, "Cut"_s, "Paste(up)"_s, "Paste(down)"_s, "Undo"_s};
        QCOMPARE(ProgramTab::menuOf(*program().stepLabel(0)), entries);
        QCOMPARE(ProgramTab::menuOf(*program().stepLabel(3)), entries);
        QVERIFY(ProgramTab::menuOf(*program().shutter(0, 0)) != entries);
        QVERIFY(ProgramTab::menuOf(*program().setPoint(0, 0)) != entries);
        QVERIFY(ProgramTab::menuOf(*program().time(0)) != entries);
    }

    void menuOpensWhereItIsAskedFor()
    {
        // Further down the screen ends, and the menu opens higher.
        station->window().move(0, -300);
        for (const int row : {0, 1}) {
            QLabel& step = *program().stepLabel(row);
            QCOMPARE(step.mapFromGlobal(ProgramTab::menuPlace(step)), step.rect().center());
        }
        station->window().move(0, 0);
    }

    void clearMakesEveryRowUnused()
    {
        program().load(numberedSteps());
        program().click("Clear");
        QCOMPARE(program().steps(), QVector<ProgramStep>(ProgramTab::rows));
    }

    void everyRowInSightIsPaintedAfterAChange()
    {
        program().load(numberedSteps());
        QCoreApplication::processEvents();
        const Painted painted;
        program().click("Clear");
        QTRY_VERIFY(painted.contains(program().time(0)));

        int inSight = 0;
        for (int k = 0; k < ProgramTab::rows; ++k) {
            const QList<QWidget*> changed{program().setPoint(k, 1), program().setPoint(k, 8),
                program().shutter(k, k % Channels::shutterCount), program().time(k), program().group(k),
                program().times(k)};
            for (QWidget* widget : changed) {
                QVERIFY(widget->updatesEnabled());
                if (!widget->visibleRegion().isEmpty()) {
                    ++inSight;
                    QVERIFY2(painted.contains(widget), qPrintable(QString::number(k)));
                }
            }
        }
        QVERIFY2(inSight >= 30, qPrintable(QString::number(inSight)));
    }
};

NELVO_TEST_MAIN(ProgramTableTest)
#include "programtable.moc"
