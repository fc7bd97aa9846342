#include "chart/axisticks.h"
#include "support/testmain.h"

#include <limits>

class AxisTicksTest : public QObject
{
    Q_OBJECT

private slots:
    void timeUnitBySpan_data();
    void timeUnitBySpan();
    void timeStepBySpan_data();
    void timeStepBySpan();
    void temperatureStepBySpan_data();
    void temperatureStepBySpan();
    void stepsBelowOneAreTheNearestNumbers();
    void quotientsAreTruncatedTowardZero();
    void aWindowWithoutUsableNumbersHasNoTicks();
    void everySpanHasAFewTicks();
    void niceStep_data();
    void niceStep();
    void niceStepOfWhatIsNotFiniteEnds();
    void orderedRange();
};

void AxisTicksTest::timeUnitBySpan_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("divisor");
    QTest::addColumn<double>("base");
    QTest::newRow("shortest") << 1.0 << 0 << 1.0 << 1.0;
    QTest::newRow("below a minute view") << 299.999 << 0 << 1.0 << 1.0;
    QTest::newRow("default") << 300.0 << 1 << 60.0 << 60.0;
    QTest::newRow("below an hour view") << 7199.999 << 1 << 60.0 << 60.0;
    QTest::newRow("hours") << 7200.0 << 2 << 3600.0 << 1800.0;
    QTest::newRow("below a day view") << 259199.999 << 2 << 3600.0 << 1800.0;
    QTest::newRow("days") << 259200.0 << 3 << 86400.0 << 43200.0;
    QTest::newRow("longest") << 2592000.0 << 3 << 86400.0 << 43200.0;
}

void AxisTicksTest::timeUnitBySpan()
{
    QFETCH(double, span);
    const AxisTicks::TimeUnit unit = AxisTicks::timeUnit(span);
    QTEST(unit.index, "index");
    QTEST(unit.divisor, "divisor");
    QTEST(unit.baseStep, "base");
}

void AxisTicksTest::timeStepBySpan_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<double>("step");
    QTest::newRow("default") << 300.0 << 60.0;
    QTest::newRow("just below the default") << 299.0 << 10.0;
    QTest::newRow("hours") << 7200.0 << 1800.0;
    QTest::newRow("longest") << 2592000.0 << 432000.0;
    QTest::newRow("shortest") << 1.0 << 1.0;
    QTest::newRow("widest in minutes") << 7199.0 << 600.0;
    QTest::newRow("widest in hours") << 259199.0 << 18000.0;
    QTest::newRow("days") << 259200.0 << 43200.0;
}

void AxisTicksTest::timeStepBySpan()
{
    QFETCH(double, span);
    QTEST(AxisTicks::decadeStep(span, AxisTicks::timeUnit(span).baseStep), "step");
}

void AxisTicksTest::temperatureStepBySpan_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<double>("step");
    QTest::newRow("default") << 1000.0 << 100.0;
    QTest::newRow("smallest") << 1.0 << 1.0;
    QTest::newRow("31") << 31.0 << 1.0;
    QTest::newRow("32") << 32.0 << 10.0;
    QTest::newRow("317") << 317.0 << 100.0;
    QTest::newRow("316") << 316.0 << 10.0;
}

void AxisTicksTest::temperatureStepBySpan()
{
    QFETCH(double, span);
    QTEST(AxisTicks::decadeStep(span, 1.0), "step");
}

// Not one bit beside the decimal: otherwise a first tick would fall a whole step short.
void AxisTicksTest::stepsBelowOneAreTheNearestNumbers()
{
    const QVector<double> ones{0.1, 0.01, 0.001, 0.0001, 0.00001, 0.000001, 0.0000001};
    const QVector<double> fives{0.5, 0.05, 0.005, 0.0005, 0.00005, 0.000005, 0.0000005};
    for (int i = 0; i < ones.size(); ++i) {
        QVERIFY(AxisTicks::niceStep(0.0, 20.0 * ones.at(i), 10).step == ones.at(i));
        QVERIFY(AxisTicks::niceStep(0.0, 50.0 * ones.at(i), 10).step == fives.at(i));
        QVERIFY(AxisTicks::decadeStep(ones.at(i), 1.0) == ones.at(i));
    }
    QVERIFY(AxisTicks::decadeStep(0.06, 60.0) == 0.06);
    QVERIFY(AxisTicks::niceStep(0.5, 0.7, 10).first == 0.51);
}

void AxisTicksTest::quotientsAreTruncatedTowardZero()
{
    const AxisTicks::Ticks default300 = AxisTicks::ticks(0.0, 300.0, 60.0);
    QCOMPARE(default300.first, 0);
    QCOMPARE(default300.last, 5);
    // A view below 0: -250 and -50 in steps of 100.
    const AxisTicks::Ticks below = AxisTicks::ticks(-250.0, -50.0, 100.0);
    QCOMPARE(below.first, -2);
    QCOMPARE(below.last, 0);
    const AxisTicks::Ticks across = AxisTicks::ticks(-99.0, 950.0, 100.0);
    QCOMPARE(across.first, 0);
    QCOMPARE(across.last, 9);
}

void AxisTicksTest::aWindowWithoutUsableNumbersHasNoTicks()
{
    const double infinite = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double odd : {infinite, -infinite, nan, 1e300}) {
        for (const AxisTicks::Ticks& ticks :
            {AxisTicks::ticks(odd, odd, 1.0), AxisTicks::ticks(0.0, odd, 1.0),
                AxisTicks::ticks(odd, 10.0, 1.0), AxisTicks::ticks(0.0, 10.0, 0.0)}) {
            QVERIFY(ticks.last < ticks.first);
        }
    }
    QVERIFY(AxisTicks::ticks(0.0, 1e6, 1.0).last < 0); // far more lines than pixels
    const AxisTicks::Ticks nanStep = AxisTicks::ticks(0.0, 10.0, nan);
    QVERIFY(nanStep.last < nanStep.first);
}

void AxisTicksTest::everySpanHasAFewTicks()
{
    for (double span = 1.0; span < 1e12; span *= 1.07) {
        const AxisTicks::Ticks ticks = AxisTicks::ticks(0.0, span, AxisTicks::decadeStep(span, 1.0));
        QVERIFY2(ticks.last >= 1 && ticks.last <= 32, qPrintable(QString::number(span)));
    }
}

void AxisTicksTest::niceStep_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<int>("n");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("step");
    QTest::newRow("no extent") << 7.5 << 7.5 << 5 << 7.5 << 1.0;
    QTest::newRow("mantissa 1") << 0.0 << 10.0 << 5 << 1.0 << 1.0;
    QTest::newRow("mantissa 1 at 2.5") << 0.0 << 25.0 << 10 << 1.0 << 1.0;
    QTest::newRow("mantissa 5") << 0.0 << 100.0 << 20 << 5.0 << 5.0;
    QTest::newRow("mantissa 5 at 7.5") << 0.0 << 75.0 << 10 << 5.0 << 5.0;
    QTest::newRow("mantissa 10") << 0.0 << 80.0 << 10 << 10.0 << 10.0;
    QTest::newRow("in any order") << 80.0 << 0.0 << 10 << 10.0 << 10.0;
    QTest::newRow("hundreds") << 130.0 << 5130.0 << 10 << 500.0 << 500.0;
    QTest::newRow("hundredths") << 0.5 << 0.7 << 10 << 0.51 << 0.01;
    QTest::newRow("below zero, truncated toward zero") << -12.0 << 38.0 << 10 << -5.0 << 5.0;
}

void AxisTicksTest::niceStep()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(int, n);
    const AxisTicks::FirstTick tick = AxisTicks::niceStep(a, b, n);
    QTEST(tick.first, "first");
    QTEST(tick.step, "step");
}

void AxisTicksTest::niceStepOfWhatIsNotFiniteEnds()
{
    const double infinite = std::numeric_limits<double>::infinity();
    QCOMPARE(AxisTicks::niceStep(0.0, infinite, 5).step, 1.0);
    QCOMPARE(AxisTicks::niceStep(std::numeric_limits<double>::quiet_NaN(), 1.0, 5).step, 1.0);
    QCOMPARE(AxisTicks::niceStep(0.0, 1.0, 0).step, 1.0);
    QCOMPARE(AxisTicks::niceStep(0.0, 1.0, -3).step, 1.0);
}

void AxisTicksTest::orderedRange()
{
    const AxisTicks::OrderedRange none = AxisTicks::orderedRange(5.0, 5.0, 4);
    QCOMPARE(none.lower, 0.0);
    QCOMPARE(none.upper, 1.0);
    QCOMPARE(none.step, 1.0);
    for (const AxisTicks::OrderedRange& range :
        {AxisTicks::orderedRange(2.0, 10.0, 4), AxisTicks::orderedRange(10.0, 2.0, 4)}) {
        QCOMPARE(range.lower, 2.0);
        QCOMPARE(range.upper, 10.0);
        QCOMPARE(range.step, 2.0);
    }
}

NELVO_TEST_MAIN(AxisTicksTest)
#include "axisticks.moc"
