// What keeps a window with a large table quick, each without changing what is seen.

#include "program/livetable.h"

#include "support/eventcount.h"
#include "support/paintcount.h"
#include "support/testmain.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace TestText;

class LiveTableTest : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheTablesPolishWaits()
    {
        QWidget earlier;
        const EventCount earlierPolished(earlier, QEvent::Polish);
        QWidget table;
        QWidget* row = nullptr;
        {
            const LatePolish late;
            row = new QWidget(&table);
        }
        const EventCount rowPolished(*row, QEvent::Polish);
        QCoreApplication::processEvents();
        QCOMPARE(earlierPolished.count, 1);
        QCOMPARE(rowPolished.count, 0);
        table.show();
        QCOMPARE(rowPolished.count, 1);
    }

    void heldUpdatesPaintOnce()
    {
        // Inside a window: the off-screen platform would warn about a window's size hints.
        QWidget window;
        window.resize(300, 600);
        auto& table = *new QWidget(&window);
        table.resize(window.size());
        auto* column = new QVBoxLayout(&table);
        QList<QLabel*> labels;
        for (int i = 0; i < 20; ++i) {
            labels.append(new QLabel("before"_s));
            column->addWidget(labels.last());
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        PaintCount tablePaints(table);
        PaintCount labelPaints(*labels.first());
        tablePaints.take();
        labelPaints.take();
        {
            const HeldUpdates held(table);
            for (QLabel* label : qAsConst(labels)) {
                label->setText("a longer text than before"_s);
            }
        }
        QCOMPARE(tablePaints.take(), 1);
        QCOMPARE(labelPaints.take(), 1);
        labels.first()->setText("later"_s);
        QCOMPARE(labelPaints.take(), 1);
    }

    void widgetsThatHeldUpdatesThemselvesStayHeld()
    {
        QWidget table;
        QLabel frozen(&table);
        frozen.setUpdatesEnabled(false);
        {
            const HeldUpdates held(table);
        }
        QVERIFY(!frozen.updatesEnabled());
    }

    void aFigureKeepsItsSize()
    {
        QLabel label("0"_s);
        giveRoomForFigures(label);
        QCOMPARE(label.text(), "0"_s);
        const QSize size = label.minimumSize();
        QCOMPARE(label.maximumSize(), size);
        for (const QString& text : {"  12.5"_s, "1234567890"_s, QString(300, u'9')}) {
            showFigure(label, text);
            QCOMPARE(label.text(), text);
            QCOMPARE(label.minimumSize(), size);
            QCOMPARE(label.maximumSize(), size);
        }
    }

    void tenCharactersHaveRoom()
    {
        QLabel label;
        giveRoomForFigures(label);
        showFigure(label, "12345678.9"_s);
        QVERIFY(label.sizeHint().width() <= label.maximumWidth());
        QVERIFY(label.sizeHint().height() <= label.maximumHeight());
        QVERIFY(label.toolTip().isEmpty());
    }

    void aLongerFigureStandsInTheToolTip()
    {
        QLabel label;
        giveRoomForFigures(label);
        showFigure(label, "123456789.5"_s);
        QCOMPARE(label.toolTip(), "123456789.5"_s);
        showFigure(label, "   1.5"_s);
        QVERIFY(label.toolTip().isEmpty());
    }
};

NELVO_TEST_MAIN(LiveTableTest)
#include "livetable.moc"
