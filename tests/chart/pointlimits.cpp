// How a history is kept within its limits.

#include "chart/lines/pointbuffer.h"
#include "support/testmain.h"

#include <cmath>
#include <limits>
#include <random>

class PointLimitsTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheNewestPointsAtTheLimit();
    void theChartsLimitIs200000Points();
    void thinningTakesEverySecondPoint();
    void thinningStopsAtItsTarget();
    void thinningFollowsTheRuleAtEveryAppend();
    void thinningAtEveryAppendIsCheap();
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

QVector<double> seconds(const PointBuffer& buffer)
{
    QVector<double> all;
    for (int i = 0; i < buffer.size(); ++i) {
        all.append(buffer.at(i).sec);
    }
    return all;
}

bool isFinite(const TPoint& point)
{
    return std::isfinite(point.sec) && std::isfinite(point.degC);
}

// Whether the buffer has just these points, and their stretches and extremes.
bool holds(const PointBuffer& buffer, const QVector<TPoint>& points)
{
    if (buffer.size() != points.size()) {
        return false;
    }
    int end = points.size();
    ValueRange range;
    for (int i = points.size() - 1; i >= 0; --i) {
        const bool isSame
            = buffer.at(i).sec == points.at(i).sec && buffer.isFinite(i) == isFinite(points.at(i));
        range.widen(points.at(i).degC, points.at(i).degC);
        const ValueRange found = buffer.range(i, end - 1);
        const bool hasExtremes
            = !isFinite(points.at(i)) || (found.lowest == range.lowest && found.highest == range.highest);
        if (!isSame || buffer.stretchEnd(i) != end || !hasExtremes) {
            return false;
        }
        const bool startsStretch = i > 0
            && !(isFinite(points.at(i)) && isFinite(points.at(i - 1))
                && points.at(i).sec >= points.at(i - 1).sec);
        if (startsStretch) {
            end = i;
            range = {};
        }
    }
    return true;
}

} // namespace

void PointLimitsTest::keepsTheNewestPointsAtTheLimit()
{
    PointBuffer buffer(5);
    for (int i = 0; i < 5; ++i) {
        buffer.append({1.0 * i, 0.0});
    }
    QCOMPARE(seconds(buffer), (QVector<double>{0, 1, 2, 3, 4}));
    buffer.append({5.0, 0.0});
    QCOMPARE(seconds(buffer), (QVector<double>{1, 2, 3, 4, 5}));

    // Over many pieces of memory.
    const PointBuffer longer = filled(10000, 3000);
    QCOMPARE(longer.size(), 3000);
    for (int i = 0; i < 3000; ++i) {
        QCOMPARE(longer.at(i).sec, 7000.0 + i);
    }
}

void PointLimitsTest::theChartsLimitIs200000Points()
{
    PointBuffer buffer;
    QCOMPARE(buffer.maximum(), 200000);
    for (int i = 0; i < 200001; ++i) {
        buffer.append({1.0 * i, 0.0});
    }
    QCOMPARE(buffer.size(), 200000);
    QCOMPARE(buffer.at(0).sec, 1.0);
    QCOMPARE(buffer.at(199999).sec, 200000.0);
}

void PointLimitsTest::thinningTakesEverySecondPoint()
{
    PointBuffer buffer(200000, 100000, PointBuffer::ThinOut);
    for (int i = 0; i < 200000; ++i) {
        buffer.append({1.0 * i, 0.0});
    }
    QCOMPARE(buffer.size(), 200000);
    buffer.append({200000.0, 0.0});
    QCOMPARE(buffer.size(), 100001);
    for (int i = 0; i < buffer.size(); ++i) {
        QCOMPARE(buffer.at(i).sec, 2.0 * i);
    }
    QCOMPARE(buffer.firstIndex(100.5), 50);
}

void PointLimitsTest::thinningStopsAtItsTarget()
{
    PointBuffer buffer(10, 8, PointBuffer::ThinOut);
    for (int i = 0; i < 11; ++i) {
        buffer.append({1.0 * i, 0.0});
    }
    QCOMPARE(seconds(buffer), (QVector<double>{0, 2, 4, 6, 7, 8, 9, 10}));
}

// Whatever the limits, with values and stretches that come along.
void PointLimitsTest::thinningFollowsTheRuleAtEveryAppend()
{
    std::mt19937 random(2);
    for (int go = 0; go < 200; ++go) {
        const int maximum = static_cast<int>(random() % 90);
        const int target = static_cast<int>(random() % 100);
        PointBuffer buffer(maximum, target, PointBuffer::ThinOut);
        QVector<TPoint> expected;
        for (int i = 0; i < 300; ++i) {
            const double back = random() % 20 == 0 ? 5.0 : 0.0;
            const bool isOdd = random() % 30 == 0;
            const double value = isOdd ? std::numeric_limits<double>::quiet_NaN() : 1.0 * (random() % 1000);
            buffer.append({i - back, value});
            expected.append({i - back, value});
            if (expected.size() > maximum) {
                for (int gone = 1; gone < expected.size() && expected.size() > target; ++gone) {
                    expected.remove(gone);
                }
            }
            QVERIFY2(
                holds(buffer, expected), qPrintable(QStringLiteral("%1 to %2").arg(maximum).arg(target)));
        }
    }
}

// Two hundred thousand times the whole history would take minutes.
void PointLimitsTest::thinningAtEveryAppendIsCheap()
{
    for (const int target : {100000, 99990, 200000}) {
        PointBuffer buffer(100000, target, PointBuffer::ThinOut);
        for (int i = 0; i < 300000; ++i) {
            buffer.append({1.0 * i, 0.0});
        }
        QCOMPARE(buffer.size() > 100000, target > 100000); // with such a target nothing is taken out
        QCOMPARE(buffer.at(buffer.size() - 1).sec, 299999.0);
    }
}

NELVO_TEST_MAIN(PointLimitsTest)
#include "pointlimits.moc"
