// Shifting the chart with the mouse.

#include "chart/support/hand.h"
#include "chart/support/shownchart.h"
#include "support/testmain.h"

class MouseTest : public QObject
{
    Q_OBJECT

private slots:
    void positionsAreRoundedHalvesUpwards();
    void recordsWhatTheMouseDid();
    void leftDragShiftsTime();
    void leftDragIntoTheFutureReturnsToNow();
    void rightDragShiftsTemperature();
    void aDragWithAModifierMovesNothing();
    void aModifierDuringADragHoldsIt();
    void aDragReleasedWithAModifierIsNotFinished();
    void aDragWithTheMiddleButtonMovesNothing();
    void ofTwoButtonsTheOneLetGoEndsTheDrag();
    void aDoubleClickResetsWithoutARepaint();
    void everyOtherEventRepaintsOnce();
    void aMoveAfterADoubleClickShowsTheFirstView();
    void draggingBeforeTheFirstPaintIsHarmless();
};

void MouseTest::positionsAreRoundedHalvesUpwards()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(2.5, -2.5), Qt::LeftButton);
    QCOMPARE(chart.view.mouseState().pressPosition(), QPoint(3, -2));
    Hand::move(chart.view, QPointF(7.49, 7.5), Qt::LeftButton);
    QCOMPARE(chart.view.mouseState().current(), QPoint(7, 8));
}

void MouseTest::recordsWhatTheMouseDid()
{
    ShownChart chart;
    const MouseC& mouse = chart.view.mouseState();
    QCOMPARE(mouse.current(), QPoint(0, 0));
    QVERIFY(!mouse.isPressed());
    Hand::press(chart.view, QPointF(10, 20), Qt::RightButton, Qt::ShiftModifier);
    QCOMPARE(mouse.pressPosition(), QPoint(10, 20));
    QCOMPARE(mouse.current(), QPoint(10, 20));
    QVERIFY(mouse.isPressed());
    QCOMPARE(mouse.button(), Qt::RightButton);
    QCOMPARE(mouse.modifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier));
    Hand::release(chart.view, QPointF(30, 40), Qt::RightButton);
    QCOMPARE(mouse.releasePosition(), QPoint(30, 40));
    QCOMPARE(mouse.current(), QPoint(30, 40));
    QVERIFY(!mouse.isPressed());
    QCOMPARE(mouse.modifiers(), Qt::KeyboardModifiers(Qt::NoModifier));
    Hand::doubleClick(chart.view, QPointF(50, 60));
    QCOMPARE(mouse.doubleClickPosition(), QPoint(50, 60));
    QCOMPARE(mouse.current(), QPoint(30, 40)); // a double click keeps it
    QCOMPARE(mouse.button(), Qt::LeftButton);
    QVERIFY(!mouse.isPressed());
}

void MouseTest::leftDragShiftsTime()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(400, 200), Qt::LeftButton);
    Hand::move(chart.view, QPointF(487, 350), Qt::LeftButton); // a tenth of the plot
    QCOMPARE(chart.state().xDragShift, 30.0);
    QCOMPARE(chart.state().xOffset, 0.0);
    QCOMPARE(chart.state().yDragShift, 0.0);
    Hand::release(chart.view, QPointF(487, 350), Qt::LeftButton);
    QCOMPARE(chart.state().xDragShift, 0.0);
    QCOMPARE(chart.state().xOffset, 30.0);
    QCOMPARE(chart.state().xMax(10000.0), 9970.0);
}

void MouseTest::leftDragIntoTheFutureReturnsToNow()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(487, 200), Qt::LeftButton);
    Hand::move(chart.view, QPointF(400, 200), Qt::LeftButton);
    QCOMPARE(chart.state().xMax(10000.0), 10030.0);
    QCOMPARE(chart.paints.take(), 1);
    Hand::release(chart.view, QPointF(400, 200), Qt::LeftButton);
    QCOMPARE(chart.state().xOffset, 0.0);
    QCOMPARE(chart.state().xMax(10000.0), 10000.0);
}

void MouseTest::rightDragShiftsTemperature()
{
    ShownChart chart;
    Hand::drag(
        chart.view, QPointF(400, 100), QPointF(500, 187), Qt::RightButton); // a fifth of the plot, down
    QCOMPARE(chart.state().yOffset, -200.0);
    QCOMPARE(chart.state().yMin(), 200.0);
    QCOMPARE(chart.state().xOffset, 0.0);
    chart.view.grab();
    Hand::drag(chart.view, QPointF(400, 187), QPointF(400, 13), Qt::RightButton);
    QCOMPARE(chart.state().yOffset, 200.0); // the offset may leave the view below zero
}

void MouseTest::aDragWithAModifierMovesNothing()
{
    for (const Qt::KeyboardModifier modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            ShownChart chart;
            Hand::drag(chart.view, QPointF(400, 100), QPointF(500, 200), button, modifier);
            QCOMPARE(chart.state().xOffset, 0.0);
            QCOMPARE(chart.state().yOffset, 0.0);
            QCOMPARE(chart.state().xDragShift, 0.0);
            QCOMPARE(chart.state().yDragShift, 0.0);
        }
    }
}

void MouseTest::aModifierDuringADragHoldsIt()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(400, 100), Qt::LeftButton);
    Hand::move(chart.view, QPointF(487, 100), Qt::LeftButton);
    Hand::move(chart.view, QPointF(600, 100), Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(chart.state().xDragShift, 30.0); // where it was without the modifier
    Hand::move(chart.view, QPointF(574, 100), Qt::LeftButton);
    QCOMPARE(chart.state().xDragShift, 60.0);
    Hand::release(chart.view, QPointF(574, 100), Qt::LeftButton);
    QCOMPARE(chart.state().xOffset, 60.0);

    Hand::press(chart.view, QPointF(400, 100), Qt::RightButton);
    Hand::move(chart.view, QPointF(400, 187), Qt::RightButton);
    Hand::move(chart.view, QPointF(400, 300), Qt::RightButton, Qt::ControlModifier);
    QCOMPARE(chart.state().yDragShift, -200.0);
    Hand::release(chart.view, QPointF(400, 300), Qt::RightButton);
    QCOMPARE(chart.state().yOffset, -200.0);
}

// The shift made without the modifier stays that of a drag, until the next one ends.
void MouseTest::aDragReleasedWithAModifierIsNotFinished()
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        const bool isLeft = button == Qt::LeftButton;
        ShownChart chart;
        const auto shift = [&] { return isLeft ? chart.state().xDragShift : chart.state().yDragShift; };
        const auto offset = [&] { return isLeft ? chart.state().xOffset : chart.state().yOffset; };
        Hand::press(chart.view, QPointF(400, 100), button);
        Hand::move(chart.view, QPointF(487, 187), button);
        Hand::release(chart.view, QPointF(487, 187), button, Qt::ShiftModifier);
        const double expected = isLeft ? 30.0 : -200.0;
        QCOMPARE(shift(), expected);
        QCOMPARE(offset(), 0.0);
        Hand::press(chart.view, QPointF(300, 300), button);
        Hand::release(chart.view, QPointF(300, 300), button);
        QCOMPARE(shift(), 0.0);
        QCOMPARE(offset(), expected);
    }
}

void MouseTest::aDragWithTheMiddleButtonMovesNothing()
{
    ShownChart chart;
    Hand::drag(chart.view, QPointF(400, 100), QPointF(500, 200), Qt::MiddleButton);
    QCOMPARE(chart.state().xOffset, 0.0);
    QCOMPARE(chart.state().yOffset, 0.0);
}

void MouseTest::ofTwoButtonsTheOneLetGoEndsTheDrag()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(400, 100), Qt::LeftButton);
    Hand::move(chart.view, QPointF(487, 100), Qt::LeftButton);
    Hand::press(chart.view, QPointF(487, 100), Qt::RightButton);
    Hand::move(chart.view, QPointF(487, 187), Qt::RightButton); // the last button pressed counts
    QCOMPARE(chart.state().yDragShift, -200.0);
    Hand::release(chart.view, QPointF(487, 187), Qt::RightButton);
    QCOMPARE(chart.state().yOffset, -200.0);
    QCOMPARE(chart.state().xDragShift, 30.0);
    // No button counts as held now, though the left one is.
    Hand::move(chart.view, QPointF(700, 300), Qt::LeftButton);
    QCOMPARE(chart.state().xDragShift, 30.0);
    QCOMPARE(chart.state().yOffset, -200.0);
    Hand::wheel(chart.view, 120);
    QCOMPARE(chart.state().xSpan, 270.0);
    QCOMPARE(chart.state().ySpan, 1000.0);
    Hand::release(chart.view, QPointF(700, 300), Qt::LeftButton);
    QCOMPARE(chart.state().xOffset, 30.0);
    QCOMPARE(chart.state().xDragShift, 0.0);
}

void MouseTest::aDoubleClickResetsWithoutARepaint()
{
    ShownChart chart;
    Hand::notches(chart.view, 5);
    Hand::drag(chart.view, QPointF(400, 200), QPointF(450, 200), Qt::LeftButton);
    Hand::press(chart.view, QPointF(400, 200), Qt::RightButton);
    Hand::notches(chart.view, 3);
    Hand::move(chart.view, QPointF(400, 230), Qt::RightButton);
    Hand::release(chart.view, QPointF(400, 230), Qt::RightButton);
    QVERIFY(chart.state().xOffset > 0.0 && chart.state().yOffset != 0.0);
    chart.paints.take();

    Hand::doubleClick(chart.view, QPointF(300, 200));
    QCOMPARE(chart.paints.take(), 0);
    QCOMPARE(chart.state().xSpan, 300.0);
    QCOMPARE(chart.state().ySpan, 1000.0);
    QCOMPARE(chart.state().xOffset, 0.0);
    QCOMPARE(chart.state().yOffset, 0.0);
    Hand::release(chart.view, QPointF(300, 200), Qt::LeftButton); // the next event shows it
    QCOMPARE(chart.paints.take(), 1);
}

void MouseTest::everyOtherEventRepaintsOnce()
{
    ShownChart chart;
    Hand::press(chart.view, QPointF(400, 200), Qt::LeftButton);
    QCOMPARE(chart.paints.take(), 1);
    Hand::move(chart.view, QPointF(400, 200), Qt::LeftButton); // even when nothing changes
    QCOMPARE(chart.paints.take(), 1);
    Hand::move(chart.view, QPointF(410, 200), Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(chart.paints.take(), 1);
    Hand::release(chart.view, QPointF(410, 200), Qt::LeftButton);
    QCOMPARE(chart.paints.take(), 1);
    Hand::wheel(chart.view, 120);
    QCOMPARE(chart.paints.take(), 1);
    // Many events before the next paint are one repaint.
    Hand::press(chart.view, QPointF(400, 200), Qt::LeftButton);
    for (int x = 400; x < 500; ++x) {
        Hand::move(chart.view, QPointF(x, 200), Qt::LeftButton);
    }
    QCOMPARE(chart.paints.take(), 1);
}

void MouseTest::aMoveAfterADoubleClickShowsTheFirstView()
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        ShownChart chart;
        QVERIFY(!chart.view.hasMouseTracking());
        Hand::notches(chart.view, 3);
        Hand::press(chart.view, QPointF(500, 200), button);
        Hand::release(chart.view, QPointF(500, 200), button);
        chart.paints.take();
        Hand::doubleClick(chart.view, QPointF(500, 200), button);
        QCOMPARE(chart.paints.take(), 0);
        for (const double x : {700.0, 750.0}) {
            Hand::move(
                chart.view, QPointF(x, 300), button); // its second press is still held, yet does not count
            QCOMPARE(chart.paints.take(), 1);
            QCOMPARE(chart.state().xDragShift, 0.0);
            QCOMPARE(chart.state().yDragShift, 0.0);
        }
        QCOMPARE(chart.state().xSpan, 300.0);
        Hand::release(chart.view, QPointF(750, 300), button);
        QCOMPARE(chart.state().xOffset, 0.0);
        QCOMPARE(chart.state().yOffset, 0.0);
    }
}

void MouseTest::draggingBeforeTheFirstPaintIsHarmless()
{
    DrivenClock clock(ShownChart::startMs);
    TShowView view;
    view.resize(400, 300);
    Hand::drag(view, QPointF(10, 10), QPointF(20, 20), Qt::LeftButton);
    Hand::drag(view, QPointF(10, 10), QPointF(20, 20), Qt::RightButton);
    Hand::press(view, QPointF(10, 10), Qt::RightButton);
    Hand::wheel(view, 120);
    QCOMPARE(view.chartView().xOffset, 0.0);
    QCOMPARE(view.chartView().yOffset, 0.0);
    QCOMPARE(view.chartView().ySpan, 900.0);
}

NELVO_TEST_MAIN(MouseTest)
#include "mouse.moc"
