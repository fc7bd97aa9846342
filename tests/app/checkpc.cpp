// The check of a PC: what it reports and when it is passed.

#include "app/checkpc.h"

#include "app/language.h"
#include "support/testmain.h"

#include <QRegularExpression>
#include <QTranslator>

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

Q_DECLARE_METATYPE(PlatformRefusal::Kind)

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
        const QString advice = "The PC sleeps or hibernates by itself: nobody would watch the cells then. "
                               "Set sleep and hibernation to \"never\".\n"_s;
        QVERIFY2(check.report().contains(advice), qPrintable(check.report()));
    }

    // Whoever follows the advice looks for its word in the table, and in the settings of Windows.
    void inJapaneseTableAndAdviceHaveOneWordForNever()
    {
        QTranslator translator;
        QVERIFY(speak(japanese(), translator));
        PcCheck check = fitPc();
        check.power = PowerSettings{"バランス"_s, 0, 10800};
        const QString report = check.report();
        QVERIFY2(report.contains("スリープ (電源接続時): なし\n"_s), qPrintable(report));
        QVERIFY2(report.contains("スリープと休止状態を「なし」に設定してください。\n"_s), qPrintable(report));
    }

    void aJapaneseReportIsInJapanese_data()
    {
        QTest::addColumn<PlatformRefusal::Kind>("kind");
        QTest::newRow("none") << PlatformRefusal::Kind::None;
        QTest::newRow("no such call") << PlatformRefusal::Kind::NoSuchCall;
        QTest::newRow("error") << PlatformRefusal::Kind::Error;
        QTest::newRow("error for timers") << PlatformRefusal::Kind::ErrorForTimers;
    }

    void aJapaneseReportIsInJapanese()
    {
        QFETCH(PlatformRefusal::Kind, kind);
        QTranslator translator;
        QVERIFY(speak(japanese(), translator));
        PcCheck check{ticksOf(200.0), PowerSettings{"バランス"_s, 60, 60}, {kind, 87}, {kind, 87}};
        const QRegularExpression english("[A-Za-z]{3,}"_s);
        QVERIFY2(!check.report().contains(english), qPrintable(check.report()));
        check.power.reset();
        check.ticks = ticksOf(10.0);
        QVERIFY2(!check.report().contains(english), qPrintable(check.report()));
    }

    void whatTheSystemRefusesIsToldAndNoFailure()
    {
        PcCheck check = fitPc();
        check.power.reset();
        check.throttling = {PlatformRefusal::Kind::Error, 87};
        QVERIFY(check.isPassed());
        QVERIFY(check.report().contains("does not tell when it sleeps"_s));
        QVERIFY(check.report().contains("covered window: no (error 87)\n"_s));
        check.throttling.kind = PlatformRefusal::Kind::ErrorForTimers;
        QVERIFY(check.report().contains("no (error 87 for timers, speed alone was done)\n"_s));
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
