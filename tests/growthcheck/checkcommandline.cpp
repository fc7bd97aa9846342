// growthcheck's options and exit statuses.

#include "growthcheck/app/options.h"
#include "growthcheck/support/checkrun.h"
#include "growthcheck/support/programtext.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QDir>

using namespace TestText;
using GrowthCheck::Assumptions;
using Kind = GrowthCheck::Assumptions::Start::Kind;

namespace {

GrowthCheck::CommandLine commandLineOf(const QStringList& words, bool isFromDesktop = false)
{
    return GrowthCheck::readCommandLine(QStringList{"growthcheck"_s} + words, isFromDesktop);
}

} // namespace

class CheckCommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        putFile("clean.dat"_s, programText({"t=10 open=Ga"_s, "t=1"_s}));
        putFile("noted.dat"_s, programText({"t=-1 open=As4"_s, "t=1"_s}));
        putFile("warned.dat"_s, programText({"t=10 open=Ga"_s}));
        putFile("wrong.dat"_s, programText({"t=12,5"_s}));
    }

    void theStatusTellsTheOutcome_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        const auto add = [](const char* name, const QStringList& words, int status) {
            QTest::newRow(name) << words << status;
        };
        add("clean", {"clean.dat"_s}, 0);
        add("notes", {"noted.dat"_s}, 0);
        add("a warning", {"warned.dat"_s}, 1);
        add("an error", {"wrong.dat"_s}, 1);
        add("one of several", {"clean.dat"_s, "warned.dat"_s, "clean.dat"_s}, 1);
        add("no file", {"absent.dat"_s}, 2);
        add("no file among others", {"warned.dat"_s, "absent.dat"_s, "clean.dat"_s}, 2);
        add("a folder", {"."_s}, 2);
        add("no rates", {"--layers"_s, "absent.txt"_s, "clean.dat"_s}, 2);
        add("no journal of the start", {"--start-from-journal"_s, "absent.log"_s, "clean.dat"_s}, 2);
        add("help", {"--help"_s}, 0);
        add("version", {"--version"_s}, 0);
        add("nothing", {}, 64);
        add("an unknown option", {"--colour"_s, "clean.dat"_s}, 64);
        add("two outputs", {"--csv"_s, "--json"_s, "clean.dat"_s}, 64);
        add("two programs for one dump", {"--vcd"_s, "clean.dat"_s, "noted.dat"_s}, 64);
        add("no such cell", {"--start"_s, "Xe=20"_s, "clean.dat"_s}, 64);
        add("no temperature", {"--start"_s, "Ga=hot"_s, "clean.dat"_s}, 64);
        add("no temperature of all", {"--start-all"_s, "20C"_s, "clean.dat"_s}, 64);
        add("no time", {"--at"_s, "tomorrow"_s, "clean.dat"_s}, 64);
        add("no wait", {"--hold"_s, "-1"_s, "clean.dat"_s}, 64);
        add("no reply", {"--reply"_s, "3001"_s, "clean.dat"_s}, 64);
        add("no language", {"--language"_s, "fr"_s, "clean.dat"_s}, 64);
        add("no run", {"compare"_s, "--run"_s, "0"_s, "clean.dat"_s, "journal"_s}, 64);
        add("rates that are none", {"--layers"_s, "clean.dat"_s, "clean.dat"_s}, 2);
        add("a journal of the start without end", {"--start-from-journal"_s, "/dev/zero"_s, "clean.dat"_s},
            2);
        add("too hot", {"--start"_s, "Ga=1e300"_s, "clean.dat"_s}, 64);
        add("all too cold", {"--start-all"_s, "-1000"_s, "clean.dat"_s}, 64);
        add("no name of a page", {"--html="_s, "clean.dat"_s}, 64);
        add("no name of rates", {"--layers="_s, "clean.dat"_s}, 64);
        add("no name of a journal", {"--start-from-journal="_s, "clean.dat"_s}, 64);
        add("compare with nothing", {"compare"_s, "clean.dat"_s}, 64);
    }

    void theStatusTellsTheOutcome()
    {
        QFETCH(QStringList, words);
        QFETCH(int, status);
        const CheckRun run = runCheck(words);
        QCOMPARE(run.status, status);
        QCOMPARE(run.complaints.isEmpty(), status < 2);
        QCOMPARE(run.complaints.count(u'\n'), status < 2 ? 0 : 1);
    }

    void temperaturesOfTheStartAreTold()
    {
        const auto starts = commandLineOf({"--start"_s, "Ga=850"_s, "--start-all"_s, "300"_s, "--start"_s,
                                              "main ch=none"_s, "--start=Ga=851.5"_s, "p.dat"_s})
                                .options.assumptions.starts;
        QCOMPARE(starts[0].kind, Kind::Known);
        QCOMPARE(starts[0].degC, 300.0);
        QCOMPARE(starts[1].degC, 851.5);
        QCOMPARE(starts[7].kind, Kind::None);
        QCOMPARE(commandLineOf({"p.dat"_s}).options.assumptions.starts[1].kind, Kind::NotTold);
    }

    void aJournalTellsThem()
    {
        const QByteArray stamp = "2026-11-21T09:41:07.123+09:00\t12.346\t";
        putFile("journal.log"_s,
            stamp + "minute\tmeasured=1 2 3 4 5 6 7 8 9\tset-points=0 0 0 0 0 0 0 0 0\n" + stamp
                + "minute\tmeasured=25.5 850 ----.- 4 5 6 7 8 9\tset-points=0 0 0 0 0 0 0 0 0\n" + stamp
                + "step\tstep=1\tgroup=a minute\tmeasured=9\n" + stamp + "min");
        putFile("ramps.dat"_s, programText({"t=60 Be=26 Ga=851 Si=10 As4=5"_s, "t=1"_s}));
        const CheckRun run = runCheck(
            {"--start-from-journal"_s, "journal.log"_s, "--start"_s, "As4=4.5"_s, "--csv"_s, "ramps.dat"_s});
        QStringList starts;
        for (const QString& line : run.lines().filter(",ramp,"_s)) {
            starts.append(line.section(u',', 10, 10) + u' ' + line.section(u',', 12));
        }
        QCOMPARE(starts, QStringList({"Be from 25.5"_s, "Ga from 850"_s, "Si from 0"_s, "As4 from 4.5"_s}));
    }

    void aJournalWithoutTemperaturesIsNone()
    {
        putFile("journal.log"_s, "2026-11-21T09:41:07.123+09:00\t12.346\tstart\tversion=1\n");
        QCOMPARE(runCheck({"--start-from-journal"_s, "journal.log"_s, "clean.dat"_s}).status, 2);
    }

    // A round takes 0.36 s; with replies of 20 ms each channel waits two more ticks of 10 ms.
    void slowRepliesMakeStepsShort()
    {
        putFile("quick.dat"_s, programText({"t=0.5"_s, "t=0.54"_s}));
        QVERIFY(!runCheck({"quick.dat"_s}).out.contains("short-step"));
        const QStringList found = runCheck({"--reply"_s, "20"_s, "quick.dat"_s}).lines();
        QCOMPARE(found.filter("short-step"_s).size(), 1);
        QVERIFY(!found.filter("round (0.54 s)"_s).isEmpty());
    }

    void textsBehindTheEndAreNotes()
    {
        putFile("ended.dat"_s, programText({"t=10"_s, "t=1,5"_s, "t=2,5 Ga=hot"_s}));
        const QStringList found = runCheck({"ended.dat"_s}).lines();
        QCOMPARE(found.filter("time-text"_s),
            QStringList({"  error time-text  step 2"_s, "  note time-text  step 3"_s}));
        QCOMPARE(found.filter("set-point-text"_s), QStringList("  note set-point-text  step 3, Ga"_s));
        QCOMPARE(found.join(u' ').count("program ends here"_s), 1);
    }

    void onlyWhatTheStationTakesIsAdvised()
    {
        putFile("texts.dat"_s, programText({"t=10 x=2.5 g=A"_s, "t=10 x=2,5 g=B"_s, "t=10 x=３回 g=C"_s}));
        const QString found = runCheck({"texts.dat"_s}).lines().join(u' ').simplified();
        QCOMPARE(found.count("times-text"_s), 3);
        QCOMPARE(found.count("Is it "_s), 1);
        QVERIFY(found.contains("Is it 3?"_s));
    }

    void aTerminalObeysNoName()
    {
        putFile("names.dat"_s, programText({"t=10 x=\u001b[2J g=\u001b]0;\u0007A"_s}));
        const QString shown = QString::fromUtf8(runCheck({"names.dat"_s}).out);
        QVERIFY(shown.contains("\"\uFFFD]0;\uFFFDA\""_s));
        QVERIFY(shown.contains("\"\uFFFD[2J\""_s));
        QVERIFY(!shown.contains(QChar(0x1B)));
    }

    void nothingTurnsTheTextAround()
    {
        const QString turned = "t=10 x=two\u202eA"_s;
        if (!canBeWritten(turned)) {
            QSKIP("the system's encoding does not have the mark");
        }
        putFile("names.dat"_s, programText({turned}));
        const QString shown = QString::fromUtf8(runCheck({"names.dat"_s}).out);
        QVERIFY(shown.contains("\"two\uFFFDA\""_s));
    }

    void aRefusalFromNowhereIsInDoubt()
    {
        putFile("fast.dat"_s, programText({"t=60 Ga=800"_s, "t=1"_s}));
        QVERIFY(runCheck({"fast.dat"_s}).out.contains(": refused?\n"));
        QVERIFY(runCheck({"--start-all"_s, "20"_s, "fast.dat"_s}).out.contains(": refused\n"));
    }

    void aDroppedProgramGetsItsPage()
    {
        const GrowthCheck::Options dropped = commandLineOf({"a folder/My.Program.DAT"_s}, true).options;
        QVERIFY(dropped.isDropped);
        QCOMPARE(dropped.page, "a folder/My.Program.html"_s);
        QVERIFY(!commandLineOf({"p.dat"_s}).options.isDropped);
        QVERIFY(!commandLineOf({"p.txt"_s}, true).options.isDropped);
        QVERIFY(!commandLineOf({"--csv"_s, "p.dat"_s}, true).options.isDropped);
        QVERIFY(!commandLineOf({"p.dat"_s, "q.dat"_s}, true).options.isDropped);
    }

    void aPageTakesThePlaceOfNoInput_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("the program") << QStringList{"--html"_s, "./input.txt"_s, "input.txt"_s};
        QTest::newRow("the rates") << QStringList{"--html"_s, "input.txt"_s, "--layers"_s,
            "../%1/input.txt"_s.arg(QDir::current().dirName()), "clean.dat"_s};
        QTest::newRow("the journal of the start")
            << QStringList{"--html"_s, "input.txt"_s, "--start-from-journal=input.txt"_s, "clean.dat"_s};
        QTest::newRow("the program compared")
            << QStringList{"compare"_s, "--html"_s, "input.txt"_s, "input.txt"_s, "journal"_s};
        QTest::newRow("the journal compared")
            << QStringList{"compare"_s, "--html"_s, "input.txt"_s, "clean.dat"_s, "input.txt"_s};
        QTest::newRow("another program") << QStringList{"--html"_s, "noted.DAT"_s, "clean.dat"_s};
        QTest::newRow("another journal") << QStringList{"--html"_s, "2026-11.log"_s, "clean.dat"_s};
    }

    void aPageTakesThePlaceOfNoInput()
    {
        QFETCH(QStringList, words);
        const QByteArray input = programText({"t=10"_s});
        putFile("input.txt"_s, input);
        const CheckRun run = runCheck(words);
        QCOMPARE(run.status, 64);
        QCOMPARE(run.complaints.count(u'\n'), 1);
        QCOMPARE(fileText("input.txt"_s), input);
    }

    void aPageMayBeWrittenAgain()
    {
        putFile("page.html"_s, "before");
        QCOMPARE(runCheck({"--html"_s, "page.html"_s, "clean.dat"_s}).status, 0);
        QVERIFY(fileText("page.html"_s).size() > 1000);
    }

    void helpNamesEveryOptionAndStatus()
    {
        const CheckRun run = runCheck({"--help"_s});
        for (const char* word : {"--start", "--at", "--hold", "--reply", "--layers", "--json", "--csv",
                 "--vcd", "--wire", "--html", "--run", "--language", "--version", "compare", "64"}) {
            QVERIFY2(run.out.contains(word), word);
        }
        for (const QString& line : run.lines()) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
        }
    }

    void theVersionIsTheStations()
    {
        QCOMPARE(runCheck({"--version"_s}).out, QByteArray("growthcheck " NELVO_VERSION "\n"));
    }
};

NELVO_TEST_MAIN(CheckCommandLineTest)
#include "checkcommandline.moc"
