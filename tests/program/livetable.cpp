// What keeps a window with a large table quick, each without changing what is seen.

#include "program/livetable.h"

#include "support/paintcount.h"
#include "support/testmain.h"

#include <QLabel>
#include <QVBoxLayout>

class LiveTableTest : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheTablesPolishWaits();
    void heldUpdatesPaintOnce();
    void widgetsThatHeldUpdatesThemselvesStayHeld();
    void aFigureKeepsItsSizeAndGrowsForLongerOnes();
};

namespace {

// Counts the polishing of a widget.
class Polished : public QObject
{
public:
    explicit Polished(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Polish ? 1 : 0;
        return false;
    }
};

} // namespace

void LiveTableTest::onlyTheTablesPolishWaits()
{
    QWidget earlier;
    const Polished earlierPolished(earlier);
    QWidget table;
    QWidget* row = nullptr;
    {
        const LatePolish late;
        row = new QWidget(&table);
    }
    const Polished rowPolished(*row);
    QCoreApplication::processEvents();
    QCOMPARE(earlierPolished.count, 1);
    QCOMPARE(rowPolished.count, 0);
    table.show();
    QCOMPARE(rowPolished.count, 1);
}

void LiveTableTest::heldUpdatesPaintOnce()
{
    // Inside a window: the off-screen platform would warn about a window's size hints.
    QWidget window;
    window.resize(300, 600);
    auto& table = *new QWidget(&window);
    table.resize(window.size());
    auto* column = new QVBoxLayout(&table);
    QList<QLabel*> labels;
    for (int i = 0; i < 20; ++i) {
        labels.append(new QLabel(QStringLiteral("before")));
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
            label->setText(QStringLiteral("a longer text than before"));
        }
    }
    QCOMPARE(tablePaints.take(), 1);
    QCOMPARE(labelPaints.take(), 1);
    labels.first()->setText(QStringLiteral("later"));
    QCOMPARE(labelPaints.take(), 1);
}

void LiveTableTest::widgetsThatHeldUpdatesThemselvesStayHeld()
{
    QWidget table;
    QLabel frozen(&table);
    frozen.setUpdatesEnabled(false);
    {
        const HeldUpdates held(table);
    }
    QVERIFY(!frozen.updatesEnabled());
}

void LiveTableTest::aFigureKeepsItsSizeAndGrowsForLongerOnes()
{
    QLabel label;
    showFigure(label, QStringLiteral("  12.5"));
    const QSize size = label.sizeHint();
    QCOMPARE(label.minimumSize(), size);
    QCOMPARE(label.maximumSize(), size);
    showFigure(label, QStringLiteral("1"));
    QCOMPARE(label.text(), QStringLiteral("1"));
    QCOMPARE(label.maximumSize(), size);
    showFigure(label, QStringLiteral("123456.5"));
    QVERIFY(label.minimumWidth() > size.width());
    QCOMPARE(label.minimumSize(), label.sizeHint());
}

NELVO_TEST_MAIN(LiveTableTest)

#include "livetable.moc"
