// The check of a PC: what it reports and when it is passed.

#include "app/checkpc.h"

#include "support/testmain.h"

using namespace TestText;

namespace {

TickLateness ticksOf(double intervalMs)
{
    TickLateness ticks(10.0);
    for (int i = 0; i <= 100; ++i) {
        ticks.tick(i * intervalMs);
    }
    return ticks;
}

PcCheck fitPc()
{
    return {ticksOf(10.0), PowerSettings{"Balanced"_s, 0, 0}, {}, {}};
}

} // namespace

class CheckPcTest : public QObject
{
    Q_OBJECT

private slots:
    void aPcThatKeepsTimeAndStaysAwakePasses()
    {
        const PcCheck check = fitPc();
        QVERIFY(check.isPassed());
        const QString report = check.report();
        for (const QString& line : {"Ticks of 10 ms: 100, one every 10.00 ms, the latest 0.0 ms late\n"_s,
                 "     100  up to 1 ms late\n"_s, "       0  later than that\n"_s, "Power plan: Balanced\n"_s,
                 "Sleeps, on mains: never\n"_s, "Hibernates, on mains: never\n"_s, "covered window: yes\n"_s,
                 "This PC can run the station.\n"_s}) {
            QVERIFY2(report.contains(line), qPrintable(report));
        }
    }

    void lateTicksFail()
    {
        PcCheck check = fitPc();
        check.ticks = ticksOf(15.6);
        QVERIFY(!check.isPassed());
        QVERIFY2(check.report().contains("The ticks are too late"_s), qPrintable(check.report()));
        QVERIFY(!check.report().contains("can run the station"_s));
    }

    void aPcThatSleepsByItselfFails_data()
    {
        QTest::addColumn<int>("sleepSec");
        QTest::addColumn<int>("hibernateSec");
        QTest::addColumn<QString>("line");
        QTest::newRow("sleeps") << 1800 << 0 << "Sleeps, on mains: after 30 min\n"_s;
        QTest::newRow("hibernates") << 0 << 10800 << "Hibernates, on mains: after 180 min\n"_s;
    }

    void aPcThatSleepsByItselfFails()
    {
        QFETCH(int, sleepSec);
        QFETCH(int, hibernateSec);
        QFETCH(QString, line);
        PcCheck check = fitPc();
        check.power = PowerSettings{"Balanced"_s, sleepSec, hibernateSec};
        QVERIFY(!check.isPassed());
        QVERIFY2(check.report().contains(line), qPrintable(check.report()));
        QVERIFY2(check.report().contains("sleeps by itself"_s), qPrintable(check.report()));
    }

    void whatTheSystemRefusesIsToldAndNoFailure()
    {
        PcCheck check = fitPc();
        check.power.reset();
        check.throttling = "error 87"_s;
        QVERIFY(check.isPassed());
        QVERIFY(check.report().contains("does not tell when it sleeps"_s));
        QVERIFY(check.report().contains("covered window: no (error 87)\n"_s));
    }

    void itMeasuresTheTimerThatTheStationUses()
    {
        const PcCheck check = checkPc(1);
        QVERIFY2(check.ticks.count() > 10 && check.ticks.count() <= 101, qPrintable(check.report()));
        QVERIFY(check.ticks.meanIntervalMs() > 9.0);
    }
};

NELVO_TEST_MAIN(CheckPcTest)
#include "checkpc.moc"
