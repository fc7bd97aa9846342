// The arithmetic of a ramp.

#include "temperature/ramp.h"

#include "support/testmain.h"

#include <algorithm>
#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Ramp::Refusal)

using namespace TestText;

namespace {

constexpr qint64 startMs = 1700000000000;

Ramp::Run started(double current, double rate)
{
    Ramp::Plan plan;
    plan.currentDegC = current;
    plan.rate = rate;
    Ramp::Run run;
    run.start(plan, startMs);
    return run;
}

// The set points of a whole ramp, as the station sends them; at most `most`.
QVector<double> setPoints(double current, double target, double rate, int most)
{
    Ramp::Run run = started(current, rate);
    QVector<double> sent;
    while (run.cellRunning && sent.size() < most) {
        sent.append(run.step(target));
    }
    return sent;
}

} // namespace

class RampTest : public QObject
{
    Q_OBJECT

private slots:
    void plans_data()
    {
        QTest::addColumn<double>("current");
        QTest::addColumn<double>("target");
        QTest::addColumn<double>("duration");
        QTest::addColumn<Ramp::Refusal>("refusal");
        QTest::addColumn<double>("rate");
        const auto none = Ramp::Refusal::None;
        QTest::newRow("rising") << 100.0 << 200.0 << 5.0 << none << 20.0;
        QTest::newRow("60 a minute") << 100.0 << 700.0 << 10.0 << Ramp::Refusal::RiseTooFast << 60.0;
        QTest::newRow("50 a minute, the limit") << 100.0 << 700.0 << 12.0 << none << 50.0;
        QTest::newRow("just above the limit") << 0.0 << 50.1 << 1.0 << Ramp::Refusal::RiseTooFast << 50.1;
        QTest::newRow("a fall of any speed") << 700.0 << 100.0 << 1.0 << none << -600.0;
        QTest::newRow("nowhere to go") << 100.0 << 100.0 << 10.0 << none << 0.0;
        QTest::newRow("less than a minute") << 100.0 << 110.0 << 0.5 << none << 20.0;
        QTest::newRow("no duration") << 100.0 << 200.0 << 0.0 << Ramp::Refusal::Duration << 0.0;
        QTest::newRow("negative duration") << 100.0 << 200.0 << -1.0 << Ramp::Refusal::Duration << 0.0;
        const double notANumber = std::numeric_limits<double>::quiet_NaN();
        const double infinite = std::numeric_limits<double>::infinity();
        QTest::newRow("the duration is no number")
            << 100.0 << 200.0 << notANumber << Ramp::Refusal::Duration << 0.0;
        QTest::newRow("a fall beyond all numbers")
            << 1e9 << -1e9 << 1e-300 << Ramp::Refusal::Duration << -infinite;
        QTest::newRow("a rise beyond all numbers")
            << -1e9 << 1e9 << 1e-300 << Ramp::Refusal::RiseTooFast << infinite;
        QTest::newRow("a set point beyond all numbers")
            << -1e308 << -1.7e308 << 0.5 << Ramp::Refusal::Duration << -1.4e308;
        QTest::newRow("the duration is looked at first")
            << 0.0 << 1e6 << 0.0 << Ramp::Refusal::Duration << 0.0;
    }

    void plans()
    {
        QFETCH(double, current);
        QFETCH(double, target);
        QFETCH(double, duration);
        QFETCH(Ramp::Refusal, refusal);
        QFETCH(double, rate);
        for (const double limit : {50.0, -50.0}) { // only its size counts
            const Ramp::Plan plan = Ramp::plan(current, target, duration, limit);
            QCOMPARE(plan.refusal, refusal);
            QCOMPARE(plan.rate, rate);
            QCOMPARE(plan.currentDegC, current);
        }
    }

    void plansFromThePanelsTexts_data()
    {
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("duration");
        QTest::addColumn<double>("rate");
        QTest::addColumn<Ramp::Refusal>("refusal");
        QTest::newRow("numbers") << "100"_s
                                 << "200.5"_s
                                 << "2"_s << 50.25 << Ramp::Refusal::RiseTooFast;
        QTest::newRow("not known") << "----.-"_s
                                   << "30"_s
                                   << "2"_s << 15.0 << Ramp::Refusal::None;
        QTest::newRow("a target that is none") << "30"_s
                                               << "8O"_s
                                               << "2"_s << -15.0 << Ramp::Refusal::None;
        QTest::newRow("a duration that is none") << "30"_s
                                                 << "40"_s
                                                 << "2m"_s << 0.0 << Ramp::Refusal::Duration;
    }

    void plansFromThePanelsTexts()
    {
        QFETCH(QString, current);
        QFETCH(QString, target);
        QFETCH(QString, duration);
        const Ramp::Plan plan = Ramp::planOf(current, target, duration, 50.0);
        QTEST(plan.rate, "rate");
        QTEST(plan.refusal, "refusal");
        QCOMPARE(plan.currentDegC, current.toDouble());
        QCOMPARE(plan.targetDegC, target.toDouble());
        QCOMPARE(plan.durationMin, duration.toDouble());
    }

    void setPointSeries_data()
    {
        QTest::addColumn<double>("current");
        QTest::addColumn<double>("target");
        QTest::addColumn<double>("duration");
        QTest::addColumn<QVector<double>>("expected");
        QTest::newRow("rising") << 100.0 << 200.0 << 5.0 << QVector<double>{120, 140, 160, 180, 200};
        QTest::newRow("falling") << 200.0 << 100.0 << 4.0 << QVector<double>{175, 150, 125, 100};
        QTest::newRow("through zero") << -20.0 << 20.0 << 2.0 << QVector<double>{0, 20};
        QTest::newRow("a fraction more") << 100.0 << 200.0 << 2.5 << QVector<double>{140, 180, 200};
        QTest::newRow("less than a minute") << 100.0 << 110.0 << 0.5 << QVector<double>{110};
        QTest::newRow("at once") << 700.0 << 100.0 << 1.0 << QVector<double>{100};
    }

    void setPointSeries()
    {
        QFETCH(double, current);
        QFETCH(double, target);
        QFETCH(double, duration);
        QFETCH(QVector<double>, expected);
        const Ramp::Plan plan = Ramp::plan(current, target, duration, 1000.0);
        QCOMPARE(setPoints(current, target, plan.rate, 100), expected);
    }

    void aStepIsAMinute() { QCOMPARE(Ramp::stepMs, qint64(60000)); }

    void everyRampEndsOnItsTarget()
    {
        int ramps = 0;
        for (double current = -50.0; current <= 1200.0; current += 61.7) {
            for (double target = -20.0; target <= 1200.0; target += 83.3) {
                for (const double duration : {0.3, 1.0, 1.5, 7.0, 10.0, 33.3, 240.0}) {
                    const double rate = (target - current) / duration;
                    const QVector<double> sent = setPoints(current, target, rate, 1000);
                    const int minutes = static_cast<int>(std::ceil(duration));
                    // One more where the rounding of the steps leaves the last one short of the target.
                    QVERIFY(sent.size() == minutes || sent.size() == minutes + 1);
                    QCOMPARE(sent.last(), target);
                    QVERIFY(rate > 0.0 ? std::is_sorted(sent.begin(), sent.end())
                                       : std::is_sorted(sent.rbegin(), sent.rend()));
                    const double low = std::min(current, target);
                    const double high = std::max(current, target);
                    QVERIFY(std::all_of(sent.begin(), sent.end(),
                        [&](double setPoint) { return setPoint >= low && setPoint <= high; }));
                    ++ramps;
                }
            }
        }
        QVERIFY(ramps > 2000);
    }

    void theFirstStepIsDueAtOnceAndTheOthersByTheMinute()
    {
        Ramp::Run run = started(100.0, 20.0);
        QVERIFY(run.cellRunning);
        QCOMPARE(run.rampStartMs, startMs);
        QVERIFY(!run.isDue(startMs));
        QVERIFY(run.isDue(startMs + 1));
        run.step(200.0);
        QVERIFY(!run.isDue(startMs + Ramp::stepMs));
        QVERIFY(run.isDue(startMs + Ramp::stepMs + 1));
        // Late steps stay on the grid: two are due now, and a third is not.
        const qint64 late = startMs + 2 * Ramp::stepMs + 500;
        run.step(200.0);
        QVERIFY(run.isDue(late));
        run.step(200.0);
        QVERIFY(!run.isDue(late));
        QCOMPARE(run.rampStartMs, startMs);
    }

    void aRampThatIsOverIsNotDue()
    {
        Ramp::Run run = started(100.0, 100.0);
        QCOMPARE(run.step(200.0), 200.0);
        QVERIFY(!run.cellRunning);
        QVERIFY(!run.isDue(startMs + 100 * Ramp::stepMs));
        QVERIFY(!Ramp::Run().isDue(startMs));
    }

    void aTargetBehindTheSetPointEndsTheRampAtOnce_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<double>("target");
        QTest::addColumn<double>("sent");
        QTest::addColumn<bool>("isOver");
        QTest::newRow("rising past it") << 20.0 << 110.0 << 110.0 << true;
        QTest::newRow("rising onto it") << 20.0 << 120.0 << 120.0 << true;
        QTest::newRow("rising short of it") << 20.0 << 120.1 << 120.0 << false;
        QTest::newRow("falling past it") << -20.0 << 90.0 << 90.0 << true;
        QTest::newRow("falling onto it") << -20.0 << 80.0 << 80.0 << true;
        QTest::newRow("falling short of it") << -20.0 << 79.9 << 80.0 << false;
    }

    void aTargetBehindTheSetPointEndsTheRampAtOnce()
    {
        QFETCH(double, rate);
        QFETCH(double, target);
        QFETCH(double, sent);
        QFETCH(bool, isOver);
        Ramp::Run run = started(100.0, rate);
        QCOMPARE(run.step(target), sent);
        QCOMPARE(run.cellRunning, !isOver);
    }

    void withoutARateThereIsNoLimitAndNoEnd()
    {
        for (const double target : {50.0, 100.0, 150.0}) {
            QCOMPARE(setPoints(100.0, target, 0.0, 50), QVector<double>(50, 100.0));
        }
    }
};

NELVO_TEST_MAIN(RampTest)
#include "ramp.moc"
