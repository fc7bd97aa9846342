// Options that would do nothing beside others, and the names of cells in them.

#include "growthcheck/app/options.h"
#include "growthcheck/support/checkrun.h"
#include "growthcheck/support/programtext.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

using namespace TestText;

class CheckOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { putFile("clean.dat"_s, programText({"t=10 open=Ga"_s, "t=1"_s})); }

    void anOptionThatWouldDoNothingIsTold_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("complaint");
        const auto add = [](const char* line, const char* complaint) {
            QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(complaint);
        };
        add("--at 2026-11-22T08:00 --wire clean.dat", "--at does nothing with --wire");
        add("--at 2026-11-22T08:00 --vcd clean.dat", "--at does nothing with --vcd");
        add("--layers rates --wire clean.dat", "--layers does nothing with --wire");
        add("--layers rates --vcd clean.dat", "--layers does nothing with --vcd");
        add("--layers rates --csv clean.dat", "--layers does nothing with --csv");
        add("--run 1 clean.dat", "--run does nothing without compare");
        add("--start-all 25 --start-from-journal log clean.dat",
            "--start-from-journal does nothing with --start-all");
        add("compare --at 2026-11-22T08:00 clean.dat log", "--at does nothing with compare");
        add("compare --start-from-journal log clean.dat log",
            "--start-from-journal does nothing with compare");
        add("compare --layers rates clean.dat log", "--layers does nothing with compare but for --html");
        add("compare --json --layers rates clean.dat log",
            "--layers does nothing with compare but for --html");
        add("--start-all 1 --start-all 2 clean.dat", "--start-all is given twice");
        add("--start-from-journal a --start-from-journal b clean.dat", "--start-from-journal is given twice");
        add("--at 2026-11-22T08:00 --at 2026-11-22T09:00 clean.dat", "--at is given twice");
        add("--hold 1 --hold 2 clean.dat", "--hold is given twice");
        add("--reply 1 --reply 2 clean.dat", "--reply is given twice");
        add("--layers a --layers b clean.dat", "--layers is given twice");
        add("--html a --html b clean.dat", "--html is given twice");
        add("compare --run 1 --run 2 clean.dat log", "--run is given twice");
        add("--language en --language en clean.dat", "--language is given twice");
    }

    void anOptionThatWouldDoNothingIsTold()
    {
        QFETCH(QString, line);
        QFETCH(QString, complaint);
        const CheckRun run = runCheck(line.split(u' '));
        QCOMPARE(run.complaints, complaint + u'\n');
        QCOMPARE(run.status, 64);
        QVERIFY(run.out.isEmpty());
    }

    // The toolkit reads the command line and opens files: what it says of them is in the language, too.
    void theToolkitsComplaintsAreInTheLanguage_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("complaint");
        QTest::newRow("unknown option") << "--nonsense clean.dat"_s
                                        << "'nonsense' は未知のオプションです。\n"_s;
        QTest::newRow("missing value") << "clean.dat --at"_s
                                       << "'--at' の後の値が欠けています。\n"_s;
        QTest::newRow("no such folder")
            << "--html none/page.html clean.dat"_s
            << "none/page.html に書けません: そのようなファイルやディレクトリはありません\n"_s;
    }

    void theToolkitsComplaintsAreInTheLanguage()
    {
#ifdef Q_OS_WIN
        QSKIP("the system says why a file cannot be opened, in its own language");
#endif
        if (!QFile::exists("/etc/debian_version"_s)) {
            QSKIP("the toolkit's catalogues may not be installed");
        }
        QFETCH(QString, line);
        QFETCH(QString, complaint);
        const CheckRun run = runCheck("--language ja "_s.append(line).split(u' '));
        QCOMPARE(run.complaints, complaint);
    }

    void anOptionThatDoesSomethingIsTaken_data()
    {
        QTest::addColumn<QString>("line");
        for (const char* line :
            {"--at 2026-11-22T08:00 --layers RATES.txt --json", "--at 2026-11-22T08:00 --csv",
                "--at 2026-11-22T08:00 --layers RATES.txt --html page.html", "--start Ga=1 --start Ga=2",
                "--start-from-journal j --start Ga=2", "compare --layers RATES.txt --html page.html",
                "compare --start-all 20 --start Ga=2 --hold 1 --reply 20 --run 1 --language en"}) {
            QTest::newRow(line) << QString::fromLatin1(line);
        }
    }

    void anOptionThatDoesSomethingIsTaken()
    {
        QFETCH(QString, line);
        QStringList words = line.split(u' ') + QStringList{"p.dat"_s};
        words += words[0] == "compare"_s ? QStringList{"journal"_s} : QStringList();
        QCOMPARE(GrowthCheck::readCommandLine(QStringList{"growthcheck"_s} + words, false).error, QString());
    }

    void cellsAreCalledWhatTheOperatorCallsThem_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("name");
        QTest::newRow("as the window") << "en"_s
                                       << "Main Ch"_s;
        QTest::newRow("in other letters") << "en"_s
                                          << "mainch"_s;
        QTest::newRow("full width") << "en"_s
                                    << "Ｍａｉｎ　Ｃｈ"_s;
        QTest::newRow("as the Japanese window") << "ja"_s
                                                << "成長室"_s;
        QTest::newRow("in English") << "ja"_s
                                    << "Main Ch"_s;
    }

    void cellsAreCalledWhatTheOperatorCallsThem()
    {
        QFETCH(QString, language);
        QFETCH(QString, name);
        putFile("ramps.dat"_s, programText({"t=60 MainCh=600"_s, "t=1"_s}));
        const CheckRun run
            = runCheck({"--start"_s, name + "=580"_s, "--csv"_s, "--language"_s, language, "ramps.dat"_s});
        QCOMPARE(run.complaints, QString());
        QCOMPARE(run.lines().filter(",ramp,"_s).join(u' ').section(u',', 12), "from 580"_s);
    }

    void otherNamesAreToldTheCells()
    {
        QCOMPARE(runCheck({"--start"_s, "Xe=20"_s, "--language"_s, "en"_s, "clean.dat"_s}).complaints,
            "--start \"Xe=20\": no channel is called \"Xe\"; these are: Be, Ga, Si, As4, Al, In, As7, Main "
            "Ch, "
            "Pre Ch\n"_s);
        const QString japanese
            = runCheck({"--start"_s, "Xe=20"_s, "--language"_s, "ja"_s, "clean.dat"_s}).complaints;
        QVERIFY2(japanese.contains("成長室"_s), qPrintable(japanese));
    }
};

NELVO_TEST_MAIN(CheckOptionsTest)
#include "checkoptions.moc"
