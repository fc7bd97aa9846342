// How late ticks came: counts, classes and the verdict.

#include "base/ticklateness.h"

#include "support/testmain.h"

#include <cmath>

using namespace TestText;

class TickLatenessTest : public QObject
{
    Q_OBJECT

    static TickLateness after(const QVector<double>& intervalsMs)
    {
        TickLateness ticks(10.0);
        double now = 5000.0;
        ticks.tick(now);
        for (const double interval : intervalsMs) {
            now += interval;
            ticks.tick(now);
        }
        return ticks;
    }

private slots:
    void nothingIsKnownBeforeTheSecondTick()
    {
        const TickLateness ticks = after({});
        QCOMPARE(ticks.count(), 0);
        QCOMPARE(ticks.meanIntervalMs(), 0.0);
        QVERIFY(!ticks.isFine());
    }

    void everyTickIsInItsClass()
    {
        // Early, in time, and at both sides of each limit.
        const TickLateness ticks
            = after({4, 10, 11, 11.5, 12, 12.5, 15, 15.5, 20, 20.5, 30, 31, 60, 61, 110, 110.5, 1000});
        QVector<int> counts;
        for (const TickLateness::Class& one : ticks.classes()) {
            counts.append(one.ticks);
        }
        QCOMPARE(counts, QVector<int>({3, 2, 2, 2, 2, 2, 2, 2}));
        QVERIFY(std::isinf(ticks.classes().last().upToMs));
        QCOMPARE(ticks.count(), 17);
        QCOMPARE(ticks.latestMs(), 990.0);
    }

    void theMeanIsFromTheFirstToTheLast()
    {
        const TickLateness ticks = after({10, 14, 6, 12});
        QCOMPARE(ticks.meanIntervalMs(), 10.5);
        QCOMPARE(ticks.latestMs(), 4.0);
    }

    void theVerdictGoesByTheMeanAndTheLatest_data()
    {
        QTest::addColumn<QVector<double>>("intervalsMs");
        QTest::addColumn<bool>("isFine");
        QTest::newRow("in time") << QVector<double>(100, 10.0) << true;
        QTest::newRow("a tenth late") << QVector<double>(100, 11.0) << true;
        QTest::newRow("more than a tenth") << QVector<double>(100, 11.01) << false;
        QTest::newRow("a coarse timer") << QVector<double>(100, 15.6) << false;
        QTest::newRow("one late by 0.1 s") << QVector<double>(QVector<double>(99, 10.0) << 110.0) << true;
        QTest::newRow("one later than that") << QVector<double>(QVector<double>(99, 10.0) << 110.1) << false;
    }

    void theVerdictGoesByTheMeanAndTheLatest()
    {
        QFETCH(QVector<double>, intervalsMs);
        QFETCH(bool, isFine);
        QCOMPARE(after(intervalsMs).isFine(), isFine);
    }
};

NELVO_TEST_MAIN(TickLatenessTest)
#include "ticklateness.moc"
