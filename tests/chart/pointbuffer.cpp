#include "chart/lines/pointbuffer.h"
#include "support/testmain.h"

#include <cmath>
#include <limits>
#include <random>

class PointBufferTest : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyBufferFindsIndexZero();
    void findsTheLastPointAtOrBefore_data();
    void findsTheLastPointAtOrBefore();
    void findsTheFirstPointLaterThan();
    void extremesAreThoseOfEveryPoint();
    void stretchesBreakWhereTheClockStepsBack();
    void aPointThatIsNotFiniteStandsAlone();
    void stretchesAreForgottenWithTheirPoints();
    void aCopyIsAHistoryOfItsOwn();
};

namespace {

PointBuffer filled(int count, int maximum = 200000)
{
    PointBuffer buffer(maximum);
    for (int i = 0; i < count; ++i) {
        buffer.append({1.0 * i, 100.0 + i});
    }
    return buffer;
}

} // namespace

void PointBufferTest::anEmptyBufferFindsIndexZero()
{
    const PointBuffer empty;
    QCOMPARE(empty.size(), 0);
    QCOMPARE(empty.firstIndex(-1.0), 0);
    QCOMPARE(empty.firstIndex(1e9), 0);
}

void PointBufferTest::findsTheLastPointAtOrBefore_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("sec");
    QTest::addColumn<int>("index");
    QTest::newRow("one point, earlier") << 1 << 5.0 << 0;
    QTest::newRow("one point, later") << 1 << -5.0 << 0;
    QTest::newRow("before all") << 10 << -0.5 << 0;
    QTest::newRow("at the first") << 10 << 0.0 << 0;
    QTest::newRow("between") << 10 << 4.5 << 4;
    QTest::newRow("exactly") << 10 << 5.0 << 5;
    QTest::newRow("at the last") << 10 << 9.0 << 9;
    QTest::newRow("after all") << 10 << 99.0 << 9;
    QTest::newRow("far in a long history") << 50000 << 31234.5 << 31234;
}

void PointBufferTest::findsTheLastPointAtOrBefore()
{
    QFETCH(int, count);
    QFETCH(double, sec);
    QTEST(filled(count).firstIndex(sec), "index");
}

void PointBufferTest::findsTheFirstPointLaterThan()
{
    const PointBuffer buffer = filled(100);
    QCOMPARE(buffer.lastIndex(10, 20.5), 21);
    QCOMPARE(buffer.lastIndex(10, 20.0), 21);
    QCOMPARE(buffer.lastIndex(10, 5.0), 11); // never the point that drawing begins with
    QCOMPARE(buffer.lastIndex(10, 1000.0), 99);
    QCOMPARE(buffer.lastIndex(99, 1000.0), 99);

    PointBuffer stepsBack = filled(10);
    stepsBack.append({2.0, 0.0});
    stepsBack.append({30.0, 0.0});
    stepsBack.append({31.0, 0.0});
    QCOMPARE(stepsBack.lastIndex(0, 20.0), 11);
}

void PointBufferTest::extremesAreThoseOfEveryPoint()
{
    std::mt19937 random(7);
    PointBuffer buffer(3000);
    QVector<double> values;
    for (int i = 0; i < 5000; ++i) {
        values.append(static_cast<double>(random() % 100000));
        buffer.append({1.0 * i, values.last()});
    }
    values = values.mid(2000);
    for (int turn = 0; turn < 500; ++turn) {
        const int first = static_cast<int>(random() % 3000);
        const int last = first + static_cast<int>(random() % static_cast<unsigned>(3000 - first));
        const ValueRange range = buffer.range(first, last);
        const auto ends = std::minmax_element(values.begin() + first, values.begin() + last + 1);
        QCOMPARE(range.lowest, *ends.first);
        QCOMPARE(range.highest, *ends.second);
    }
}

void PointBufferTest::stretchesBreakWhereTheClockStepsBack()
{
    PointBuffer buffer;
    for (const double sec : {0.0, 1.0, 1.0, 2.0, 0.5, 0.6, 0.1}) {
        buffer.append({sec, 0.0});
    }
    QCOMPARE(buffer.stretchEnd(0), 4); // the same second twice is no step back
    QCOMPARE(buffer.stretchEnd(3), 4);
    QCOMPARE(buffer.stretchEnd(4), 6);
    QCOMPARE(buffer.stretchEnd(6), 7);
}

void PointBufferTest::aPointThatIsNotFiniteStandsAlone()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    PointBuffer buffer;
    buffer.append({0.0, 1.0});
    buffer.append({1.0, nan});
    buffer.append({2.0, 1.0});
    buffer.append({infinite, 1.0});
    buffer.append({3.0, -infinite});
    buffer.append({4.0, 1.0});
    QVector<int> ends;
    QVector<bool> finite;
    for (int i = 0; i < buffer.size(); ++i) {
        ends.append(buffer.stretchEnd(i));
        finite.append(buffer.isFinite(i));
    }
    QCOMPARE(ends, (QVector<int>{1, 2, 3, 4, 5, 6}));
    QCOMPARE(finite, (QVector<bool>{true, false, true, false, false, true}));
}

void PointBufferTest::stretchesAreForgottenWithTheirPoints()
{
    PointBuffer buffer(2000);
    for (int i = 0; i < 9000; ++i) {
        buffer.append({1.0 * (i % 900), 0.0}); // back every 900 points
    }
    int start = 0;
    int stretches = 0;
    while (start < buffer.size()) {
        const int end = buffer.stretchEnd(start);
        QVERIFY(end > start);
        for (int i = start + 1; i < end; ++i) {
            QVERIFY(buffer.at(i).sec >= buffer.at(i - 1).sec);
        }
        if (end < buffer.size()) {
            QVERIFY(buffer.at(end).sec < buffer.at(end - 1).sec);
        }
        start = end;
        ++stretches;
    }
    QCOMPARE(stretches, 3);
}

void PointBufferTest::aCopyIsAHistoryOfItsOwn()
{
    PointBuffer original = filled(100);
    PointBuffer copy = original;
    copy.append({100.0, -1.0});
    original.append({200.0, -2.0});
    QCOMPARE(original.at(100).sec, 200.0);
    QCOMPARE(copy.at(100).sec, 100.0);
    QCOMPARE(copy.range(0, 100).lowest, -1.0);
}

NELVO_TEST_MAIN(PointBufferTest)
#include "pointbuffer.moc"
