#include "chart/lines/m4columns.h"
#include "support/testmain.h"

#include <cmath>
#include <limits>
#include <random>

class M4ColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void truncatesTowardZeroAndNeverOverflows();
    void columnsHoldWhatTheirPointsSay_data();
    void columnsHoldWhatTheirPointsSay();
    void aloneEachPointIsAColumn();
    void whatIsNotFiniteHasNoColumnAndJoinsNothing();
    void sharedRowsAreThoseOfUprightsSideBySide();
    void repeatedRowsAreThoseOfNeighboursOnOnePixel();
};

namespace {

PlotMapping mapping()
{
    PlotMapping map;
    map.left = 100.0;
    map.right = 970.0;
    map.top = 28.0;
    map.bottom = 516.0;
    map.xMin = 0.0;
    map.xMax = 300.0;
    map.yMin = 0.0;
    map.yMax = 1000.0;
    return map;
}

M4Column upright(double x, double top, double bottom)
{
    return {0, 1, x, top, bottom, {top, bottom}, true};
}

} // namespace

void M4ColumnsTest::truncatesTowardZeroAndNeverOverflows()
{
    QCOMPARE(truncatedPixel(2.9), 2.0);
    QCOMPARE(truncatedPixel(-2.9), -2.0);
    QCOMPARE(truncatedPixel(-0.9), 0.0);
    QCOMPARE(truncatedPixel(3e12 + 0.5), 3e12);
    QCOMPARE(pixelOf(-7.9), -7);
    const double huge = std::numeric_limits<double>::max();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double far : {1e10, 1e300, huge, infinite}) {
        QVERIFY(pixelOf(far) > 20000000 && pixelOf(-far) < -20000000);
        QVERIFY(std::isfinite(truncatedPixel(far)));
    }
    QVERIFY(std::isfinite(truncatedPixel(std::numeric_limits<double>::quiet_NaN())));
}

void M4ColumnsTest::columnsHoldWhatTheirPointsSay_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("stepBack");
    QTest::newRow("dense") << 20000 << 0.0;
    QTest::newRow("sparse") << 200 << 0.0;
    QTest::newRow("clock back") << 5000 << 30.0;
    QTest::newRow("left of the picture") << 3000 << -400.0;
}

void M4ColumnsTest::columnsHoldWhatTheirPointsSay()
{
    QFETCH(int, count);
    QFETCH(double, stepBack);
    std::mt19937 random(3);
    PointBuffer points;
    for (int i = 0; i < count; ++i) {
        const double back = stepBack > 0.0 ? (i / 300 % 3) * stepBack : stepBack;
        points.append({400.0 * i / count - back - (stepBack < 0.0 ? 700.0 : 0.0), 1.0 * (random() % 1500)});
    }
    const PlotMapping map = mapping();
    int next = 0;
    for (const M4Column& column : m4Columns(points, map, 0, points.size() - 1)) {
        QCOMPARE(column.first, next);
        double top = 1e9;
        double bottom = -1e9;
        for (int i = column.first; i <= column.last; ++i) {
            QCOMPARE(std::trunc(map.pixelX(points.at(i).sec)), column.x);
            const double row = std::trunc(map.pixelY(points.at(i).degC));
            top = std::min(top, row);
            bottom = std::max(bottom, row);
        }
        QCOMPARE(column.rows.top, top);
        QCOMPARE(column.rows.bottom, bottom);
        QCOMPARE(column.entry, std::trunc(map.pixelY(points.at(column.first).degC)));
        QCOMPARE(column.exit, std::trunc(map.pixelY(points.at(column.last).degC)));
        QCOMPARE(column.isJoined, next > 0);
        QCOMPARE(column.hasUpright(), column.last > column.first);
        next = column.last + 1;
    }
    QCOMPARE(next, points.size());
}

void M4ColumnsTest::aloneEachPointIsAColumn()
{
    PointBuffer points;
    for (int i = 0; i < 50; ++i) {
        points.append({0.01 * i, 100.0 * (i % 7)});
    }
    const QVector<M4Column> columns = m4Columns(points, mapping(), 3, 40, true);
    QCOMPARE(columns.size(), 38);
    for (int i = 0; i < columns.size(); ++i) {
        QCOMPARE(columns.at(i).first, 3 + i);
        QCOMPARE(columns.at(i).entry, columns.at(i).exit);
        QCOMPARE(columns.at(i).isJoined, i > 0);
        QVERIFY(!columns.at(i).hasUpright());
    }
}

void M4ColumnsTest::whatIsNotFiniteHasNoColumnAndJoinsNothing()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const TPoint& odd :
        {TPoint{150.0, nan}, TPoint{nan, 500.0}, TPoint{150.0, infinite}, TPoint{-infinite, 500.0}}) {
        PointBuffer points;
        points.append(odd);
        points.append({149.0, 100.0});
        points.append({150.0, 100.0});
        points.append(odd);
        points.append({150.0, 700.0});
        points.append(odd);
        QVector<int> firsts;
        QVector<bool> joined;
        for (const M4Column& column : m4Columns(points, mapping(), 0, 5)) {
            firsts.append(column.first);
            joined.append(column.isJoined);
        }
        QCOMPARE(firsts, (QVector<int>{1, 2, 4}));
        QCOMPARE(joined, (QVector<bool>{false, true, false}));
    }
}

void M4ColumnsTest::sharedRowsAreThoseOfUprightsSideBySide()
{
    QVector<M4Column> columns{upright(7, 10, 20), upright(8, 12, 30), upright(9, 5, 18), upright(10, 40, 50),
        upright(12, 40, 50), upright(11, 40, 50)};
    QCOMPARE(sharedRows(columns, 0, 2).top, 12.0);
    QCOMPARE(sharedRows(columns, 0, 2).bottom, 18.0);
    QCOMPARE(sharedRows(columns, 1, 1).bottom, 30.0);
    QVERIFY(sharedRows(columns, 2, 3).isEmpty()); // nothing in common
    QVERIFY(sharedRows(columns, 3, 4).isEmpty()); // a column between them
    QVERIFY(sharedRows(columns, 4, 5).isEmpty()); // the clock stepped back
    QVERIFY(sharedRows(columns, -1, 1).isEmpty());
    QVERIFY(sharedRows(columns, 5, 6).isEmpty());
    columns[1].last = columns[1].first; // a point alone
    QVERIFY(sharedRows(columns, 0, 2).isEmpty());
}

void M4ColumnsTest::repeatedRowsAreThoseOfNeighboursOnOnePixel()
{
    std::mt19937 random(8);
    const PlotMapping map = mapping();
    for (int go = 0; go < 200; ++go) {
        PointBuffer points;
        for (int i = 0; i < 60; ++i) {
            points.append({100.0, 1.0 * (random() % 300)});
        }
        const RowRange limits{380.0 + random() % 40, 480.0 + random() % 50};
        const RowRange covered{400.0 + random() % 40, 440.0 + random() % 40};
        QVector<bool> expected(1000, false);
        for (int i = 1; i < points.size(); ++i) {
            const double row = std::trunc(map.pixelY(points.at(i).degC));
            const bool isOpen = limits.contains({row, row}) && !covered.contains({row, row});
            if (isOpen && row == std::trunc(map.pixelY(points.at(i - 1).degC))) {
                expected[static_cast<int>(row)] = true;
            }
        }
        QVector<bool> found(1000, false);
        double before = -9.0;
        const QVector<M4Column> columns = m4Columns(points, map, 0, points.size() - 1);
        QCOMPARE(columns.size(), 1);
        for (const RowRange& rows : repeatedRows(points, map, columns.first(), limits, covered)) {
            QVERIFY(rows.top > before + 1.0); // from the top, and with a row between them
            before = rows.bottom;
            std::fill(found.begin() + static_cast<int>(rows.top),
                found.begin() + 1 + static_cast<int>(rows.bottom), true);
        }
        QCOMPARE(found, expected);
    }
}

NELVO_TEST_MAIN(M4ColumnsTest)
#include "m4columns.moc"
