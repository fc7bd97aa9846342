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
    void aFigureKeepsItsSize();
    void tenCharactersHaveRoom();
    void aLongerFigureStandsInTheToolTip();
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

void LiveTableTest::aFigureKeepsItsSize()
{
    QLabel label(QStringLiteral("0"));
    giveRoomForFigures(label);
    QCOMPARE(label.text(), QStringLiteral("0"));
    const QSize size = label.minimumSize();
    QCOMPARE(label.maximumSize(), size);
    for (const QString& text : {QStringLiteral("  12.5"), QStringLiteral("1234567890"), QString(300, u'9')}) {
        showFigure(label, text);
        QCOMPARE(label.text(), text);
        QCOMPARE(label.minimumSize(), size);
        QCOMPARE(label.maximumSize(), size);
    }
}

void LiveTableTest::tenCharactersHaveRoom()
{
    QLabel label;
    giveRoomForFigures(label);
    showFigure(label, QStringLiteral("12345678.9"));
    QVERIFY(label.sizeHint().width() <= label.maximumWidth());
    QVERIFY(label.sizeHint().height() <= label.maximumHeight());
    QVERIFY(label.toolTip().isEmpty());
}

void LiveTableTest::aLongerFigureStandsInTheToolTip()
{
    QLabel label;
    giveRoomForFigures(label);
    showFigure(label, QStringLiteral("123456789.5"));
    QCOMPARE(label.toolTip(), QStringLiteral("123456789.5"));
    showFigure(label, QStringLiteral("   1.5"));
    QVERIFY(label.toolTip().isEmpty());
}

NELVO_TEST_MAIN(LiveTableTest)

#include "livetable.moc"
