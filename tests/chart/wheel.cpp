// Magnifying the chart with the wheel.

#include "chart/support/hand.h"
#include "chart/support/shownchart.h"
#include "support/testmain.h"

#include <QApplication>
#include <QWheelEvent>

class WheelTest : public QObject
{
    Q_OBJECT

private slots:
    void wheelScalesTimeByOneFactorWhateverItsSize();
    void wheelWithTheRightButtonKeepsTheTemperatureUnderTheCursor();
    void wheelUsesTheRecordedPositionNotItsOwn();
    void wheelWithTheRightButtonRepaints();
    void wheelWithAnotherButtonChangesNothingButRepaints();
    void wheelThatDoesNotTurnScalesDown();
    void modifiersDoNotChangeTheWheel();
    void aThousandNotchesAndATripleSpanStillPaint();
};

void WheelTest::wheelScalesTimeByOneFactorWhateverItsSize()
{
    for (const int delta : {15, 120, 240, 960}) {
        ShownChart chart;
        Hand::wheel(chart.view, delta);
        QCOMPARE(chart.state().xSpan, 270.0);
        QCOMPARE(chart.state().xMax(10000.0), 10000.0);
    }
    ShownChart chart;
    Hand::wheel(chart.view, -120);
    QCOMPARE(chart.state().xSpan, 300.0 / 0.9);
    QCOMPARE(chart.state().ySpan, 1000.0);
    Hand::notches(chart.view, -300);
    QCOMPARE(chart.state().xSpan, 2592000.0);
    Hand::notches(chart.view, 300);
    QCOMPARE(chart.state().xSpan, 1.0);
}

void WheelTest::wheelWithTheRightButtonKeepsTheTemperatureUnderTheCursor()
{
    ShownChart chart;
    // 500 deg C stands in the middle of the plot, at y = 242.5: the pixels beside it will do.
    Hand::press(chart.view, QPointF(500, 242), Qt::RightButton);
    const double before = chart.view.coordinates().dataY(242);
    Hand::wheel(chart.view, 120);
    QCOMPARE(chart.state().ySpan, 900.0);
    QCOMPARE(chart.state().xSpan, 300.0);
    chart.view.grab();
    QCOMPARE(chart.view.coordinates().dataY(242), before);
    Hand::notches(chart.view, -1);
    QCOMPARE(chart.state().ySpan, 1000.0);
    Hand::release(chart.view, QPointF(500, 242), Qt::RightButton);

    // With a plot of an even height, exactly: from 50 to 950.
    chart.view.resize(1000, 100); // from y = 5 to y = 92
    chart.view.resize(1000, 400); // from y = 20 to y = 368
    Hand::doubleClick(chart.view, QPointF(500, 194));
    chart.view.grab();
    Hand::press(chart.view, QPointF(500, 194), Qt::RightButton);
    Hand::wheel(chart.view, 120);
    QCOMPARE(chart.state().ySpan, 900.0);
    QCOMPARE(chart.state().yOffset, -50.0);
    QCOMPARE(chart.state().yMin(), 50.0);
    QCOMPARE(chart.state().yMax(), 950.0);
}

void WheelTest::wheelUsesTheRecordedPositionNotItsOwn()
{
    ShownChart atPress;
    ShownChart elsewhere;
    for (ShownChart* chart : {&atPress, &elsewhere}) {
        Hand::press(chart->view, QPointF(500, 400), Qt::RightButton);
    }
    Hand::wheel(atPress.view, 120, QPointF(500, 400));
    Hand::wheel(elsewhere.view, 120, QPointF(10, 30));
    QVERIFY(atPress.state().yOffset != 0.0);
    QCOMPARE(elsewhere.state().yOffset, atPress.state().yOffset);
}

void WheelTest::wheelWithTheRightButtonRepaints()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(500, 242), Qt::RightButton);
    chart.paints.take();
    for (const int delta : {120, -120}) {
        Hand::wheel(chart.view, delta);
        QCOMPARE(chart.paints.take(), 1);
    }
}

void WheelTest::wheelWithAnotherButtonChangesNothingButRepaints()
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        ShownChart chart;
        Hand::press(chart.view, QPointF(500, 242), button);
        chart.paints.take();
        Hand::wheel(chart.view, 120);
        Hand::wheel(chart.view, -120);
        Hand::wheel(chart.view, 120);
        QCOMPARE(chart.state().xSpan, 300.0);
        QCOMPARE(chart.state().ySpan, 1000.0);
        QCOMPARE(chart.state().yOffset, 0.0);
        QCOMPARE(chart.paints.take(), 1);
    }
}

// Only a turn away from the hand is a step closer.
void WheelTest::wheelThatDoesNotTurnScalesDown()
{
    ShownChart chart;
    Hand::wheel(chart.view, 0);
    QCOMPARE(chart.state().xSpan, 300.0 / 0.9);
    Hand::press(chart.view, QPointF(500, 242), Qt::RightButton);
    Hand::wheel(chart.view, 0);
    QCOMPARE(chart.state().ySpan, 1000.0 / 0.9);
}

void WheelTest::modifiersDoNotChangeTheWheel()
{
    for (const Qt::KeyboardModifier modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        ShownChart chart;
        Hand::wheel(chart.view, 120, QPointF(500, 200), modifier);
        QCOMPARE(chart.state().xSpan, 270.0);
    }
    // As some platforms report the wheel with Alt held: sideways.
    ShownChart chart;
    QWheelEvent event(QPointF(9, 9), QPointF(9, 9), QPoint(), QPoint(120, 0), Qt::NoButton, Qt::AltModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&chart.view, &event);
    QCOMPARE(chart.state().xSpan, 270.0);
}

void WheelTest::aThousandNotchesAndATripleSpanStillPaint()
{
    ShownChart chart;
    for (int i = 0; i < 500; ++i) {
        chart.view.addPoint(0, 20.0 * i, i % 2 == 0 ? 1e9 : -1e9);
    }
    for (const Qt::MouseButton held : {Qt::NoButton, Qt::RightButton}) {
        if (held != Qt::NoButton) {
            Hand::press(chart.view, QPointF(500, 200), held);
        }
        for (int turn = 0; turn < 4; ++turn) {
            Hand::notches(chart.view, turn % 2 == 0 ? 1000 : -1000);
            QVERIFY(!chart.view.grab().isNull());
        }
        Hand::notches(chart.view, -9000); // to where the numbers end
        QVERIFY(!chart.view.grab().isNull());
        const double spanFarOut = chart.state().ySpan;
        Hand::notches(chart.view, 1);
        QCOMPARE(chart.state().ySpan < spanFarOut, held == Qt::RightButton); // the wheel still works
        Hand::release(chart.view, QPointF(500, 200), Qt::RightButton);
    }
    Hand::doubleClick(chart.view, QPointF(500, 200));
    QVERIFY(!chart.view.grab().isNull());
    QCOMPARE(chart.view.coordinates().mapping().yMax, 1000.0);
    QCOMPARE(chart.view.coordinates().dataX(970.0), 10000.0);
}

NELVO_TEST_MAIN(WheelTest)
#include "wheel.moc"
