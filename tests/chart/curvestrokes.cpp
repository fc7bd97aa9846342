#include "chart/lines/curvestrokes.h"
#include "support/testmain.h"

#include <limits>
#include <random>

class CurveStrokesTest : public QObject
{
    Q_OBJECT

private slots:
    void aColumnIsTheRectangleThatThePenSweeps();
    void otherwiseUprightsAreDrawnOrNotGathered();
    void columnsWithRowsInCommonAreFilledAtOnce();
    void strokesGrowWithColumnsAndNotWithPoints();
    void coveredConnectionsAreLeftOut();
    void nothingIsDrawnFromOrToWhatIsNotFinite();
    void valuesAtTheEndsOfAllNumbersAreDrawnSomewhere();
};

namespace {

// A pixel a second from x = 100, a pixel a degree up from y = 500.
PlotMapping mapping()
{
    PlotMapping map;
    map.left = 100.0;
    map.right = 900.0;
    map.top = 20.0;
    map.bottom = 500.0;
    map.xMin = 0.0;
    map.xMax = 800.0;
    map.yMin = 0.0;
    map.yMax = 480.0;
    return map;
}

PlotMapping mappingOf(double xSpan, double yMin, double yMax)
{
    PlotMapping map = mapping();
    map.xMax = xSpan;
    map.yMin = yMin;
    map.yMax = yMax;
    return map;
}

PointBuffer noise(int count)
{
    std::mt19937 random(5);
    PointBuffer points;
    for (int i = 0; i < count; ++i) {
        points.append({800.0 * i / count, 100.0 + random() % 300});
    }
    return points;
}

PointBuffer history(const QVector<QPointF>& places)
{
    PointBuffer points;
    for (const QPointF& place : places) {
        points.append({place.x(), place.y()});
    }
    return points;
}

} // namespace

void CurveStrokesTest::aColumnIsTheRectangleThatThePenSweeps()
{
    const PointBuffer points = history({{10.0, 100.0}, {10.2, 130.0}, {10.9, 110.0}, {30.0, 90.0}});
    CurvePen pen;
    CurveStrokes strokes = curveStrokes(points, mapping(), 0, 3, pen);
    QCOMPARE(strokes.fills, (QVector<QRectF>{QRectF(109.5, 369.5, 1.0, 31.0)})); // rows 370 to 400
    QCOMPARE(strokes.lines, (QVector<QLineF>{QLineF(110, 390, 130, 410)}));
    pen.width = pen.dotWidth = 3.0;
    strokes = curveStrokes(points, mapping(), 0, 3, pen);
    QCOMPARE(strokes.fills, (QVector<QRectF>{QRectF(108.5, 368.5, 3.0, 33.0)}));

    // Two points on one pixel, alone and within an upright.
    pen = {1.0, 2.0, Uprights::Filled};
    strokes = curveStrokes(history({{10.0, 100.0}, {10.0, 100.0}}), mapping(), 0, 1, pen);
    QVERIFY(strokes.fills.contains(QRectF(109.0, 399.5, 2.0, 1.0)));
    strokes = curveStrokes(history({{10.0, 100.0}, {10.0, 130.0}, {10.0, 130.0}}), mapping(), 0, 2, pen);
    QCOMPARE(
        strokes.fills, (QVector<QRectF>{QRectF(109.5, 369.5, 1.0, 31.0), QRectF(109.0, 369.5, 2.0, 1.0)}));
}

void CurveStrokesTest::otherwiseUprightsAreDrawnOrNotGathered()
{
    const PointBuffer points = history({{10.0, 100.0}, {10.2, 130.0}, {10.9, 110.0}, {30.0, 90.0}});
    CurveStrokes strokes = curveStrokes(points, mapping(), 0, 3, {3.0, 3.0, Uprights::Drawn});
    QVERIFY(strokes.fills.isEmpty());
    QCOMPARE(strokes.lines, (QVector<QLineF>{QLineF(110, 370, 110, 400), QLineF(110, 390, 130, 410)}));
    strokes = curveStrokes(points, mapping(), 0, 3, {3.0, 3.0, Uprights::NotGathered});
    QVERIFY(strokes.fills.isEmpty());
    QCOMPARE(strokes.lines,
        (QVector<QLineF>{
            QLineF(110, 400, 110, 370), QLineF(110, 370, 110, 390), QLineF(110, 390, 130, 410)}));
}

void CurveStrokesTest::columnsWithRowsInCommonAreFilledAtOnce()
{
    PointBuffer points;
    for (int i = 0; i < 1600; ++i) {
        points.append({0.5 * i, i % 2 == 0 ? 100.0 : 300.0});
    }
    const CurveStrokes strokes = curveStrokes(points, mapping(), 0, 1599, {});
    QVERIFY2(strokes.fills.size() <= 100, qPrintable(QString::number(strokes.fills.size())));
}

void CurveStrokesTest::strokesGrowWithColumnsAndNotWithPoints()
{
    for (const int count : {2000, 20000, 200000}) {
        const PointBuffer points = noise(count);
        for (const CurvePen& pen :
            {CurvePen{1.0, 1.0, Uprights::Filled}, CurvePen{3.0, 3.0, Uprights::Filled},
                CurvePen{1.0, 1.5, Uprights::Filled}, CurvePen{3.0, 6.0, Uprights::Filled}}) {
            // In sight, and with Y so near that every column leaves the plot.
            for (const double ySpan : {480.0, 48.0}) {
                const PlotMapping map = mappingOf(800.0, 250.0 - ySpan / 2, 250.0 + ySpan / 2);
                const CurveStrokes strokes = curveStrokes(points, map, 0, count - 1, pen);
                const int drawn = strokes.fills.size() + strokes.lines.size();
                // A few to each of 801 columns; where dots show, as many as there are rows for them.
                QVERIFY2(
                    drawn < (pen.dotWidth > pen.width ? 12 : 4) * 801, qPrintable(QString::number(drawn)));
            }
        }
    }
}

void CurveStrokesTest::coveredConnectionsAreLeftOut()
{
    const CurveStrokes strokes
        = curveStrokes(noise(200000), mapping(), 0, 199999, {3.0, 3.0, Uprights::Filled});
    QVERIFY2(strokes.lines.size() < 80, qPrintable(QString::number(strokes.lines.size())));
}

void CurveStrokesTest::nothingIsDrawnFromOrToWhatIsNotFinite()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const QPointF& odd :
        {QPointF(250.0, nan), QPointF(nan, 250.0), QPointF(250.0, infinite), QPointF(-infinite, 250.0)}) {
        const PointBuffer points
            = history({{10.0, 100.0}, {100.0, 100.0}, odd, {200.0, 300.0}, {290.0, 300.0}});
        for (const Uprights uprights : {Uprights::Filled, Uprights::Drawn, Uprights::NotGathered}) {
            const CurveStrokes strokes = curveStrokes(points, mapping(), 0, 4, {1.0, 1.0, uprights});
            QCOMPARE(
                strokes.lines, (QVector<QLineF>{QLineF(110, 400, 200, 400), QLineF(300, 200, 390, 200)}));
            QVERIFY(strokes.fills.isEmpty());
        }
    }
}

void CurveStrokesTest::valuesAtTheEndsOfAllNumbersAreDrawnSomewhere()
{
    const double huge = std::numeric_limits<double>::max();
    PointBuffer points;
    for (int i = 0; i < 800; ++i) {
        const double value = i % 3 == 0 ? huge : (i % 3 == 1 ? -huge : 250.0);
        points.append({0.5 * i, value});
    }
    points.append({huge, huge});
    for (const CurvePen& pen : {CurvePen{1.0, 1.0, Uprights::Filled}, CurvePen{3.0, 6.0, Uprights::Filled},
             CurvePen{3.0, 3.0, Uprights::NotGathered}}) {
        const CurveStrokes strokes = curveStrokes(points, mapping(), 0, points.size() - 1, pen);
        QVERIFY(!strokes.lines.isEmpty());
        // Fills are what an int can hold, and stay near the plot.
        for (const QRectF& rect : strokes.fills) {
            QVERIFY(QRectF(0.0, -100.0, 1000.0, 700.0).contains(rect));
        }
    }
    // Columns and rows that cannot be seen.
    for (const QPointF& away :
        {QPointF(-1e12, 100.0), QPointF(1e12, 100.0), QPointF(100.0, 1e12), QPointF(100.0, -1e12)}) {
        const PointBuffer far = history({away, away + QPointF(0.0, 50.0), away, away});
        const CurveStrokes strokes = curveStrokes(far, mapping(), 0, 3, {3.0, 6.0, Uprights::Filled});
        QVERIFY(strokes.fills.isEmpty() && strokes.lines.isEmpty());
    }
    // Y span 1 with points a thousand million away, up and down.
    PointBuffer jagged;
    for (int i = 0; i < 400; ++i) {
        jagged.append({2.0 * i, i % 2 == 0 ? 1e9 : -1e9});
    }
    QCOMPARE(curveStrokes(jagged, mappingOf(800.0, 0.0, 1.0), 0, 399, {}).lines.size(), 399);
}

NELVO_TEST_MAIN(CurveStrokesTest)
#include "curvestrokes.moc"
