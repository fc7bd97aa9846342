#include "chart/linestrokes.h"
#include "chart/pixelcolumns.h"
#include "support/testmain.h"

#include <cmath>
#include <limits>
#include <random>

class LineStrokesTest : public QObject
{
    Q_OBJECT

private slots:
    void truncatesTowardZeroAndNeverOverflows();
    void columnsHoldWhatTheirPointsSay_data();
    void columnsHoldWhatTheirPointsSay();
    void strokesGrowWithColumnsAndNotWithPoints();
    void nothingIsDrawnFromOrToWhatIsNotFinite();
    void anEndFarAwayKeepsTheSlope();
    void aSegmentFarAwayIsLeftOut();
    void valuesAtTheEndsOfAllNumbersAreDrawnSomewhere();
};

namespace {

PlotMapping mapping(double xMin = 0.0, double xMax = 300.0, double yMin = 0.0, double yMax = 1000.0)
{
    PlotMapping map;
    map.left = 100.0;
    map.right = 970.0;
    map.top = 28.0;
    map.bottom = 516.0;
    map.xMin = xMin;
    map.xMax = xMax;
    map.yMin = yMin;
    map.yMax = yMax;
    return map;
}

} // namespace

void LineStrokesTest::truncatesTowardZeroAndNeverOverflows()
{
    QCOMPARE(wholePixel(2.9), 2.0);
    QCOMPARE(wholePixel(-2.9), -2.0);
    QCOMPARE(wholePixel(-0.9), 0.0);
    QCOMPARE(wholePixel(3e12 + 0.5), 3e12);
    QCOMPARE(pixelOf(-7.9), -7);
    const double huge = std::numeric_limits<double>::max();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double far : {1e10, 1e300, huge, infinite}) {
        QVERIFY(pixelOf(far) > 20000000 && pixelOf(-far) < -20000000);
        QVERIFY(std::isfinite(wholePixel(far)));
    }
    QVERIFY(std::isfinite(wholePixel(std::numeric_limits<double>::quiet_NaN())));
}

void LineStrokesTest::columnsHoldWhatTheirPointsSay_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("stepBack");
    QTest::newRow("dense") << 20000 << 0.0;
    QTest::newRow("sparse") << 200 << 0.0;
    QTest::newRow("clock back") << 5000 << 30.0;
    QTest::newRow("left of the picture") << 3000 << -400.0;
}

void LineStrokesTest::columnsHoldWhatTheirPointsSay()
{
    QFETCH(int, count);
    QFETCH(double, stepBack);
    std::mt19937 random(3);
    PointBuffer buffer;
    for (int i = 0; i < count; ++i) {
        const double back = stepBack > 0.0 ? (i / 300 % 3) * stepBack : stepBack;
        buffer.append({400.0 * i / count - back - (stepBack < 0.0 ? 700.0 : 0.0), 1.0 * (random() % 1500)});
    }
    const PlotMapping map = mapping();
    const QVector<PixelColumn> columns = pixelColumns(buffer, map, 0, buffer.size() - 1);
    int next = 0;
    for (const PixelColumn& column : columns) {
        QCOMPARE(column.first, next);
        double top = 1e9;
        double bottom = -1e9;
        for (int i = column.first; i <= column.last; ++i) {
            QCOMPARE(std::trunc(map.pixelX(buffer.at(i).sec)), column.x);
            const double row = std::trunc(map.pixelY(buffer.at(i).degC));
            top = std::min(top, row);
            bottom = std::max(bottom, row);
        }
        QCOMPARE(column.top, top);
        QCOMPARE(column.bottom, bottom);
        QCOMPARE(column.entry, std::trunc(map.pixelY(buffer.at(column.first).degC)));
        QCOMPARE(column.exit, std::trunc(map.pixelY(buffer.at(column.last).degC)));
        next = column.last + 1;
    }
    QCOMPARE(next, buffer.size());
}

void LineStrokesTest::strokesGrowWithColumnsAndNotWithPoints()
{
    for (const int count : {2000, 20000, 200000}) {
        std::mt19937 random(5);
        PointBuffer buffer;
        for (int i = 0; i < count; ++i) {
            buffer.append({300.0 * i / count, 100.0 + random() % 800});
        }
        for (const int width : {1, 3}) {
            for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
                // In sight, and with Y so near that every column leaves the plot.
                for (const double ySpan : {1000.0, 100.0}) {
                    const PlotMapping map = mapping(0.0, 300.0, 500.0 - ySpan / 2, 500.0 + ySpan / 2);
                    const LineStrokes strokes
                        = lineStrokes(buffer, map, 0, count - 1, PenShape(width, scale));
                    const int made = strokes.lines.size() + strokes.uprights.lines.size()
                        + strokes.uprights.fills.size();
                    QVERIFY2(made < 5 * 871 * scale, qPrintable(QString::number(made)));
                }
            }
        }
    }
}

void LineStrokesTest::nothingIsDrawnFromOrToWhatIsNotFinite()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const TPoint& odd :
        {TPoint{150.0, nan}, TPoint{nan, 500.0}, TPoint{150.0, infinite}, TPoint{-infinite, 500.0}}) {
        PointBuffer buffer;
        buffer.append({10.0, 100.0});
        buffer.append({100.0, 100.0});
        buffer.append(odd);
        buffer.append({200.0, 700.0});
        buffer.append({290.0, 700.0});
        const LineStrokes strokes = lineStrokes(buffer, mapping(), 0, 4, PenShape());
        QCOMPARE(strokes.lines, (QVector<QLine>{QLine(129, 467, 390, 467), QLine(680, 174, 941, 174)}));
        QCOMPARE(strokes.uprights.lines.size() + strokes.uprights.fills.size(), 0);
    }
}

void LineStrokesTest::anEndFarAwayKeepsTheSlope()
{
    QLine line;
    QVERIFY(segmentLine(0.0, 0.0, 100.0, 50.0, line));
    QCOMPARE(line, QLine(0, 0, 100, 50));
    // As far as ints go, the ends are as they are.
    QVERIFY(segmentLine(-2147483647.0, 0.0, 2147483647.0, 7.0, line));
    QCOMPARE(line, QLine(-2147483647, 0, 2147483647, 7));
    // Further away, the middle stays where it was.
    QVERIFY(segmentLine(-1e12, 300.0 - 1e12, 1e12, 300.0 + 1e12, line));
    QCOMPARE(line.y1() - line.x1(), 300);
    QCOMPARE(line.y2() - line.x2(), 300);
    QVERIFY(segmentLine(500.0, 300.0, 501.0, -1e18, line));
    QCOMPARE(line.p1(), QPoint(500, 300));
    QCOMPARE(line.x2(), 500);
    QVERIFY(line.y2() < -1000000);
}

void LineStrokesTest::aSegmentFarAwayIsLeftOut()
{
    QLine line;
    QVERIFY(!segmentLine(1e10, 5.0, 2e10, 5.0, line));
    QVERIFY(!segmentLine(5.0, -1e10, 6.0, -2e10, line));
    QVERIFY(!segmentLine(1e12, 0.0, 0.0, 1e12, line));
}

void LineStrokesTest::valuesAtTheEndsOfAllNumbersAreDrawnSomewhere()
{
    const double huge = std::numeric_limits<double>::max();
    PointBuffer buffer;
    for (int i = 0; i < 400; ++i) {
        const double value = i % 3 == 0 ? huge : (i % 3 == 1 ? -huge : 500.0);
        buffer.append({1.0 * i, value});
    }
    buffer.append({huge, huge});
    for (const double scale : {1.0, 1.25, 2.0}) {
        for (const int width : {1, 3}) {
            const LineStrokes strokes
                = lineStrokes(buffer, mapping(), 0, buffer.size() - 1, PenShape(width, scale));
            QVERIFY(!strokes.lines.isEmpty());
        }
    }
    // Y span 1 with points a thousand million away, up and down.
    PointBuffer jagged;
    for (int i = 0; i < 400; ++i) {
        jagged.append({1.0 * i, i % 2 == 0 ? 1e9 : -1e9});
    }
    const LineStrokes strokes = lineStrokes(jagged, mapping(0.0, 300.0, 0.0, 1.0), 0, 399, PenShape());
    QVERIFY(strokes.lines.size() >= 300);
}

NELVO_TEST_MAIN(LineStrokesTest)
#include "linestrokes.moc"
