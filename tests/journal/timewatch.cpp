// What is noticed of clocks that are set, sleep, and ticks that come late.

#include "journal/timewatch.h"

#include "support/testmain.h"

using Clocks = TimeWatch::Clocks;

class TimeWatchTest : public QObject
{
    Q_OBJECT

private slots:
    void changes_data()
    {
        QTest::addColumn<int>("steady");
        QTest::addColumn<int>("system");
        QTest::addColumn<int>("slept");
        QTest::addColumn<QList<int>>("found"); // stepped, slept, late
        QTest::newRow("a tick") << 10 << 10 << 0 << QList<int>{0, 0, 0};
        QTest::newRow("a little late") << 110 << 110 << 0 << QList<int>{0, 0, 0};
        QTest::newRow("late") << 111 << 111 << 0 << QList<int>{0, 0, 101};
        QTest::newRow("held up for a minute") << 60010 << 60010 << 0 << QList<int>{0, 0, 60000};
        QTest::newRow("slewed") << 10 << 110 << 0 << QList<int>{0, 0, 0};
        QTest::newRow("set forward") << 10 << 3600010 << 0 << QList<int>{3600000, 0, 0};
        QTest::newRow("set back") << 10 << -3599990 << 0 << QList<int>{-3600000, 0, 0};
        QTest::newRow("a nap") << 10 << 600010 << 600000 << QList<int>{0, 600000, 0};
        QTest::newRow("a nap and late") << 510 << 600510 << 600000 << QList<int>{0, 600000, 500};
        QTest::newRow("a nap and set") << 10 << 1000010 << 600000 << QList<int>{400000, 600000, 0};
    }

    void changes()
    {
        QFETCH(int, steady);
        QFETCH(int, system);
        QFETCH(int, slept);
        QFETCH(QList<int>, found);
        TimeWatch watch(10);
        const Clocks start{1000000, 1700000000000, 5000};
        const TimeWatch::Findings first = watch.look(start);
        QCOMPARE(first.steppedMs + first.sleptMs + first.lateMs, qint64(0));
        const TimeWatch::Findings second
            = watch.look({start.steadyMs + steady, start.systemMs + system, start.sleptMs + slept});
        QCOMPARE(second.steppedMs, qint64(found[0]));
        QCOMPARE(second.sleptMs, qint64(found[1]));
        QCOMPARE(second.lateMs, qint64(found[2]));
        // Told once.
        const TimeWatch::Findings third
            = watch.look({start.steadyMs + steady + 10, start.systemMs + system + 10, start.sleptMs + slept});
        QCOMPARE(third.steppedMs + third.sleptMs + third.lateMs, qint64(0));
    }
};

NELVO_TEST_MAIN(TimeWatchTest)
#include "timewatch.moc"
