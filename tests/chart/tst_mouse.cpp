// Shifting and magnifying the chart with the mouse.

#include "chart/support/hand.h"
#include "chart/support/paintcount.h"
#include "chart/tshowview.h"
#include "support/testmain.h"
#include "support/ticks.h"

#include <QWheelEvent>

namespace {

constexpr qint64 startMs = 1700000000000;

/// The chart in a real window, 10000 s after the start, painted once. The plot is 870 pixels wide (300 s)
/// from x = 100, and 435 pixels high (1000 deg C) from y = 25 to y = 460.
class Chart
{
public:
    Chart()
        : clock(startMs + 10000000)
        , paints(view)
    {
        view.resize(1000, 500);
        view.setStartTime(startMs);
        view.show();
        paints.take();
    }

    const ChartView& state() const { return view.chartView(); }

    DrivenClock clock;
    TShowView view;
    PaintCount paints;
};

} // namespace

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
    void aDragWithTheMiddleButtonMovesNothing();
    void wheelScalesTimeByOneFactorWhateverItsSize();
    void wheelWithTheRightButtonKeepsTheTemperatureUnderTheCursor();
    void wheelUsesTheRecordedPositionNotItsOwn();
    void wheelWithTheLeftButtonChangesNothingButRepaints();
    void modifiersDoNotChangeTheWheel();
    void aDoubleClickResetsWithoutARepaint();
    void everyOtherEventRepaintsOnce();
    void movesWithoutAButtonDoNothing();
    void draggingBeforeTheFirstPaintIsHarmless();
    void aThousandNotchesAndATripleSpanStillPaint();
};

void MouseTest::positionsAreRoundedHalvesUpwards()
{
    Chart chart;
    Hand::press(chart.view, QPointF(2.5, -2.5), Qt::LeftButton);
    QCOMPARE(chart.view.mouseState().pressPosition(), QPoint(3, -2));
    Hand::move(chart.view, QPointF(7.49, 7.5), Qt::LeftButton);
    QCOMPARE(chart.view.mouseState().current(), QPoint(7, 8));
}

void MouseTest::recordsWhatTheMouseDid()
{
    Chart chart;
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
    Chart chart;
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
    Chart chart;
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
    Chart chart;
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
            Chart chart;
            Hand::drag(chart.view, QPointF(400, 100), QPointF(500, 200), button, modifier);
            QCOMPARE(chart.state().xOffset, 0.0);
            QCOMPARE(chart.state().yOffset, 0.0);
            QCOMPARE(chart.state().xDragShift, 0.0);
            QCOMPARE(chart.state().yDragShift, 0.0);
        }
    }
    // Released with a modifier, a shift made without it stays a drag's.
    Chart chart;
    Hand::press(chart.view, QPointF(400, 100), Qt::LeftButton);
    Hand::move(chart.view, QPointF(487, 100), Qt::LeftButton);
    Hand::release(chart.view, QPointF(487, 100), Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(chart.state().xDragShift, 30.0);
    QCOMPARE(chart.state().xOffset, 0.0);
}

void MouseTest::aDragWithTheMiddleButtonMovesNothing()
{
    Chart chart;
    Hand::drag(chart.view, QPointF(400, 100), QPointF(500, 200), Qt::MiddleButton);
    QCOMPARE(chart.state().xOffset, 0.0);
    QCOMPARE(chart.state().yOffset, 0.0);
}

void MouseTest::wheelScalesTimeByOneFactorWhateverItsSize()
{
    for (const int delta : {15, 120, 240, 960}) {
        Chart chart;
        Hand::wheel(chart.view, delta);
        QCOMPARE(chart.state().xSpan, 270.0);
        QCOMPARE(chart.state().xMax(10000.0), 10000.0);
    }
    Chart chart;
    Hand::wheel(chart.view, -120);
    QCOMPARE(chart.state().xSpan, 300.0 / 0.9);
    QCOMPARE(chart.state().ySpan, 1000.0);
    Hand::notches(chart.view, -300);
    QCOMPARE(chart.state().xSpan, 2592000.0);
    Hand::notches(chart.view, 300);
    QCOMPARE(chart.state().xSpan, 1.0);
}

void MouseTest::wheelWithTheRightButtonKeepsTheTemperatureUnderTheCursor()
{
    Chart chart;
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

void MouseTest::wheelUsesTheRecordedPositionNotItsOwn()
{
    Chart here;
    Chart elsewhere;
    for (Chart* chart : {&here, &elsewhere}) {
        Hand::press(chart->view, QPointF(500, 400), Qt::RightButton);
    }
    Hand::wheel(here.view, 120, QPointF(500, 400));
    Hand::wheel(elsewhere.view, 120, QPointF(10, 30));
    QVERIFY(here.state().yOffset != 0.0);
    QCOMPARE(elsewhere.state().yOffset, here.state().yOffset);
}

void MouseTest::wheelWithTheLeftButtonChangesNothingButRepaints()
{
    Chart chart;
    Hand::press(chart.view, QPointF(500, 242), Qt::LeftButton);
    chart.paints.take();
    Hand::wheel(chart.view, 120);
    Hand::wheel(chart.view, -120);
    Hand::wheel(chart.view, 120);
    QCOMPARE(chart.state().xSpan, 300.0);
    QCOMPARE(chart.state().ySpan, 1000.0);
    QCOMPARE(chart.state().yOffset, 0.0);
    QCOMPARE(chart.paints.take(), 1);
}

void MouseTest::modifiersDoNotChangeTheWheel()
{
    for (const Qt::KeyboardModifier modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        Chart chart;
        Hand::wheel(chart.view, 120, QPointF(500, 200), modifier);
        QCOMPARE(chart.state().xSpan, 270.0);
    }
    // As some platforms report the wheel with Alt held: sideways.
    Chart chart;
    QWheelEvent event(QPointF(9, 9), QPointF(9, 9), QPoint(), QPoint(120, 0), Qt::NoButton, Qt::AltModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&chart.view, &event);
    QCOMPARE(chart.state().xSpan, 270.0);
}

void MouseTest::aDoubleClickResetsWithoutARepaint()
{
    Chart chart;
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
    Chart chart;
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

void MouseTest::movesWithoutAButtonDoNothing()
{
    Chart chart;
    QVERIFY(!chart.view.hasMouseTracking());
    Hand::move(chart.view, QPointF(700, 300), Qt::NoButton);
    QCOMPARE(chart.paints.take(), 0);
    QCOMPARE(chart.state().xDragShift, 0.0);
}

void MouseTest::draggingBeforeTheFirstPaintIsHarmless()
{
    DrivenClock clock(startMs);
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

void MouseTest::aThousandNotchesAndATripleSpanStillPaint()
{
    Chart chart;
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
        Hand::release(chart.view, QPointF(500, 200), Qt::RightButton);
    }
    Hand::doubleClick(chart.view, QPointF(500, 200));
    QVERIFY(!chart.view.grab().isNull());
    QCOMPARE(chart.view.coordinates().mapping().yMax, 1000.0);
    QCOMPARE(chart.view.coordinates().dataX(970.0), 10000.0);
}

NELVO_TEST_MAIN(MouseTest)
#include "tst_mouse.moc"
