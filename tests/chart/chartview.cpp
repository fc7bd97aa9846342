#include "chart/chartview.h"
#include "support/testmain.h"

#include <cmath>
#include <limits>

class ChartViewTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheLast300SecondsFrom0To1000();
    void timeZoomIsOneFactorANotchAndLimited_data();
    void timeZoomIsOneFactorANotchAndLimited();
    void temperatureZoomKeepsTheFixedTemperature();
    void temperatureZoomEndsAtOneDegree();
    void theRightEdgeNeverRestsLaterThanNow();
    void temperatureMayRestBelowZero();
    void aThousandNotchesOnTheTimeAxisComeBack();
    void aThousandNotchesOnTheTemperatureAxisEndWithAReset();
    void whatIsNotFiniteIsIgnored();
};

void ChartViewTest::showsTheLast300SecondsFrom0To1000()
{
    const ChartView view;
    QCOMPARE(view.xMax(5000.0), 5000.0);
    QCOMPARE(view.xMin(5000.0), 4700.0);
    QCOMPARE(view.yMin(), 0.0);
    QCOMPARE(view.yMax(), 1000.0);
}

void ChartViewTest::timeZoomIsOneFactorANotchAndLimited_data()
{
    QTest::addColumn<double>("before");
    QTest::addColumn<bool>("closer");
    QTest::addColumn<double>("after");
    QTest::newRow("closer") << 300.0 << true << 270.0;
    QTest::newRow("away") << 270.0 << false << 300.0;
    QTest::newRow("not over 30 days") << 2500000.0 << false << 2592000.0;
    QTest::newRow("not under a second") << 1.05 << true << 1.0;
}

void ChartViewTest::timeZoomIsOneFactorANotchAndLimited()
{
    QFETCH(double, before);
    QFETCH(bool, closer);
    ChartView view;
    view.xSpan = before;
    view.xOffset = 12.0;
    view.zoomX(closer);
    QTEST(view.xSpan, "after");
    QCOMPARE(view.xMax(1000.0), 988.0); // the right edge stays
}

void ChartViewTest::temperatureZoomKeepsTheFixedTemperature()
{
    ChartView view;
    view.zoomY(true, 500.0);
    QCOMPARE(view.ySpan, 900.0);
    QCOMPARE(view.yOffset, -50.0);
    QCOMPARE(view.yMin(), 50.0);
    QCOMPARE(view.yMax(), 950.0);

    // Anywhere, with a drag going on.
    for (const double fixed : {-300.0, 0.0, 123.0, 2000.0}) {
        for (const bool closer : {true, false}) {
            ChartView dragged;
            dragged.yOffset = 30.0;
            dragged.yDragShift = -70.0;
            const double part = (fixed - dragged.yMin()) / dragged.ySpan;
            dragged.zoomY(closer, fixed);
            QCOMPARE((fixed - dragged.yMin()) / dragged.ySpan + 1.0, part + 1.0);
        }
    }
}

void ChartViewTest::temperatureZoomEndsAtOneDegree()
{
    ChartView view;
    for (int notch = 0; notch < 100; ++notch) {
        view.zoomY(true, 500.0);
    }
    QCOMPARE(view.ySpan, 1.0);
    QVERIFY(view.yMin() < 500.0 && view.yMax() > 500.0);
    view.ySpan = 2e9;
    view.zoomY(false, 0.0); // no upper limit
    QCOMPARE(view.ySpan, 2e9 / 0.9);
}

void ChartViewTest::theRightEdgeNeverRestsLaterThanNow()
{
    ChartView view;
    view.dragX(-40.0);
    QCOMPARE(view.xMax(1000.0), 1040.0); // while the drag lasts
    view.finishXDrag();
    QCOMPARE(view.xMax(1000.0), 1000.0);
    view.dragX(25.0);
    view.finishXDrag();
    view.dragX(-5.0);
    view.finishXDrag();
    QCOMPARE(view.xMax(1000.0), 980.0);
}

void ChartViewTest::temperatureMayRestBelowZero()
{
    ChartView view;
    view.dragY(200.0);
    view.finishYDrag();
    QCOMPARE(view.yMin(), -200.0);
    view.dragY(-500.0);
    view.finishYDrag();
    QCOMPARE(view.yMin(), 300.0);
    QCOMPARE(view.yDragShift, 0.0);
}

void ChartViewTest::aThousandNotchesOnTheTimeAxisComeBack()
{
    ChartView view;
    for (const bool closer : {true, false, true}) {
        for (int notch = 0; notch < 1000; ++notch) {
            view.zoomX(closer);
        }
        QCOMPARE(view.xSpan, closer ? 1.0 : 2592000.0);
    }
    QVERIFY(view.xMin(1000.0) < view.xMax(1000.0));
}

void ChartViewTest::aThousandNotchesOnTheTemperatureAxisEndWithAReset()
{
    ChartView view;
    for (int notch = 0; notch < 20000; ++notch) {
        view.zoomY(false, 500.0);
    }
    for (int notch = 0; notch < 1000; ++notch) {
        view.zoomY(true, 500.0);
    }
    QVERIFY(!std::isnan(view.yOffset));
    view.reset();
    QCOMPARE(view.yMin(), 0.0);
    QCOMPARE(view.yMax(), 1000.0);
    QCOMPARE(view.xSpan, 300.0);
}

void ChartViewTest::whatIsNotFiniteIsIgnored()
{
    ChartView view;
    for (const double odd :
        {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        view.dragX(odd);
        view.dragY(odd);
        view.zoomY(true, odd);
        view.finishXDrag();
        view.finishYDrag();
    }
    QCOMPARE(view.xMax(1000.0), 1000.0);
    QCOMPARE(view.yMin(), 0.0);
}

NELVO_TEST_MAIN(ChartViewTest)
#include "chartview.moc"
