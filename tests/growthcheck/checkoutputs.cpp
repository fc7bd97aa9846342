// The forms in which growthcheck says what it found. The texts of expected/ are what it wrote once and
// somebody read; "stack" has everything in it that a grower's program has.

#include "growthcheck/check/loadedprogram.h"
#include "growthcheck/output/output.h"
#include "growthcheck/output/textlines.h"
#include "growthcheck/rehearsal/playedsteps.h"
#include "growthcheck/rehearsal/rehearsal.h"
#include "growthcheck/support/checkrun.h"
#include "growthcheck/support/programtext.h"
#include "growthcheck/support/randomprogram.h"
#include "program/programfile.h"
#include "shutter/shuttercommand.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QTextStream>

using namespace TestText;

namespace {

const QString expected = QStringLiteral(NELVO_EXPECTED "/");

// The states of a dump's wires when a step begins: "ms step pass letters".
QStringList dumpedStates(const QByteArray& dump)
{
    QStringList states;
    QMap<QByteArray, QByteArray> values; // by code
    QByteArray ms;
    const auto note = [&] {
        if (!values.contains("A") || ms.isEmpty()) {
            return;
        }
        QString letters;
        for (char code = 'A'; code <= 'G'; ++code) {
            letters += values[QByteArray(1, code)] == "1" ? u'o' : u'x';
        }
        const QString state = "%1 %2 %3"_s.arg(QString::number(values["!"].toInt(nullptr, 2)),
            QString::number(values["\""].toInt(nullptr, 2)), letters);
        if (states.isEmpty() || states.constLast().section(u' ', 1) != state) {
            states.append(QString::fromLatin1(ms) + u' ' + state);
        }
    };
    for (const QByteArray& line : dump.split('\n')) {
        if (line.startsWith('#')) {
            note();
            ms = line.mid(1);
        } else if (line.startsWith('b')) {
            values[line.mid(line.indexOf(' ') + 1)] = line.mid(1, line.indexOf(' ') - 1);
        } else if (line.startsWith('0') || line.startsWith('1')) {
            values[line.mid(1)] = line.left(1);
        }
    }
    note();
    return states;
}

} // namespace

class CheckOutputsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        putFile("stack.dat"_s, fileText(expected + "stack.dat"_s));
        putFile("RATES.txt"_s, "Ga 0.28\nAl 0.12\n");
    }

    void aFormIsWhatItWas_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("stack.txt") << QStringList{
            "--at"_s, "2026-11-22T23:58"_s, "--layers"_s, "RATES.txt"_s};
        QTest::newRow("stack.ja.txt") << QStringList{"--layers"_s, "RATES.txt"_s, "--language"_s, "ja"_s};
        QTest::newRow("stack.json") << QStringList{
            "--json"_s, "--at"_s, "2026-11-22T23:58"_s, "--layers"_s, "RATES.txt"_s};
        QTest::newRow("stack.csv") << QStringList{"--csv"_s, "--at"_s, "2026-11-22T23:58"_s};
        QTest::newRow("stack.vcd") << QStringList{"--vcd"_s};
        QTest::newRow("stack.wire") << QStringList{"--wire"_s};
    }

    void aFormIsWhatItWas()
    {
        QFETCH(QStringList, options);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const CheckRun run
            = runCheck(options + QStringList{"--start-all"_s, "25"_s, "--hold"_s, "20"_s, "stack.dat"_s});
        QCOMPARE(run.complaints, QString());
        putFile(name, run.out);
        const QStringList was = QString::fromUtf8(fileText(expected + name)).split(u'\n');
        QCOMPARE(run.lines(), was);
    }

    void textFitsATerminal()
    {
        for (quint32 seed = 0; seed < 100; ++seed) {
            RandomProgram random(seed);
            QString text;
            QTextStream stream(&text);
            ProgramFile::write(stream, random.edited());
            stream.flush();
            putFile("random.dat"_s, text.toLocal8Bit());
            for (const char* language : {"en", "ja"}) {
                const CheckRun run = runCheck({"--language"_s, QLatin1String(language), "--at"_s,
                    "2026-11-22T08:00"_s, "--layers"_s, "RATES.txt"_s, "random.dat"_s});
                for (const QString& line : run.lines()) {
                    QVERIFY2(
                        GrowthCheck::columnsOf(line) <= 80, qPrintable("seed %1: %2"_s.arg(seed).arg(line)));
                }
            }
        }
    }

    void longListsFitToo()
    {
        putFile("long.dat"_s, "0 0 900 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1400 ---NoGroup--- 1\n");
        const CheckRun run = runCheck({"--start-all"_s, "25"_s, "long.dat"_s});
        QVERIFY(run.out.contains(" 900.0\n"));
        for (const QString& line : run.lines()) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
        }
    }

    void hugeNumbersAreReadable_data()
    {
        QTest::addColumn<QStringList>("program");
        QTest::newRow("a total of 301 digits") << QStringList{"t=1e300 open=Ga,As4"_s};
        QTest::newRow("a time of 301 digits") << QStringList{"t=1"_s + "0"_s.repeated(300)};
        QTest::newRow("a total that is no number")
            << QStringList{"t=1.7e308 open=Ga"_s, "t=1.7e308"_s, "t=1.7e308"_s};
        QTest::newRow("repeats that are no number") << QStringList{"t=1e300 open=Ga g=A x=2147483647"_s};
        QTest::newRow("thick layers") << QStringList{"t=-1"_s, "t=1e13 open=Be,Ga,Si,As4,Al,In"_s,
            "t=9 g=A x=2147483647 open=Be,Ga,Si,As4,Al,In"_s, "t=9 g=A open=Ga"_s, "t=-1 open=Ga"_s, "t=9"_s};
        QTest::newRow("steps to the end of time") << QStringList{
            "t=-1"_s, "t=3.1e13 open=Be,Ga,Si,As4,Al,In"_s, "t=9 open=Ga g=A x=2000000000"_s, "t=1e13"_s};
        QTest::newRow("a set point of 301 digits") << QStringList{"t=1e13 Ga=1e300"_s, "t=9 Si=1e300"_s};
    }

    void hugeNumbersAreReadable()
    {
        QFETCH(QStringList, program);
        putFile("huge.dat"_s, programText(program));
        putFile("fast.txt"_s, "Ga 1000\nAl 999\nIn 998\n");
        const QStringList options{"--at"_s, "2026-11-22T08:00"_s, "--layers"_s, "fast.txt"_s};
        for (const char* language : {"en", "ja"}) {
            const CheckRun run
                = runCheck(options + QStringList{"--language"_s, QLatin1String(language), "huge.dat"_s});
            for (const QString& line : run.lines()) {
                QVERIFY2(GrowthCheck::columnsOf(line) <= 80, qPrintable(line));
                QVERIFY2(!line.contains(QRegularExpression("\\b(inf|nan)\\b|^ +$"_s)), qPrintable(line));
                QVERIFY2(!line.contains(QRegularExpression("Be,Si\\d"_s)), qPrintable(line));
            }
        }
        QJsonParseError error;
        const QByteArray json = runCheck(options + QStringList{"--json"_s, "huge.dat"_s}).out;
        QJsonDocument::fromJson(json, &error);
        QCOMPARE(error.errorString(), QJsonParseError().errorString());
        QVERIFY(!json.contains("\"clock\":\"\""));
    }

    void aTotalThatIsNoNumberIsNull()
    {
        const auto shownTotal = [](const QStringList& program) -> QJsonValue {
            putFile("huge.dat"_s, programText(program));
            const QJsonObject document
                = QJsonDocument::fromJson(runCheck({"--json"_s, "huge.dat"_s}).out).object();
            return document["programs"_s].toArray()[0].toObject()["shownTotalSec"_s];
        };
        QCOMPARE(shownTotal({"t=1e300"_s}).toDouble(), 1e300);
        QVERIFY(shownTotal({"t=1.7e308"_s, "t=1.7e308"_s, "t=1"_s}).isNull());
    }

    void aDumpHoldsEveryStep()
    {
        for (quint32 seed = 0; seed < 50; ++seed) {
            const RandomProgram random(seed);
            GrowthCheck::CheckedProgram checked;
            checked.timeline = GrowthCheck::rehearse(random.loaded, random.assumptions);
            QByteArray dump;
            GrowthCheck::writeVcd(checked, [&dump](const QByteArray& piece) { dump += piece; });
            QStringList steps;
            GrowthCheck::playSteps(checked.timeline, [&steps](const GrowthCheck::PlayedStep& step) {
                const QString state = "%1 %2 %3"_s.arg(QString::number(step.planned.row + 1),
                    QString::number(step.pass), shutterLetters(step.planned.plan.shutters));
                if (steps.isEmpty() || steps.constLast().section(u' ', 1) != state) {
                    steps.append(QString::number(step.startMs) + u' ' + state);
                }
                return true;
            });
            QCOMPARE(dumpedStates(dump), steps);
        }
    }

    void severalProgramsAreOneDocument()
    {
        const CheckRun run = runCheck({"--json"_s, "stack.dat"_s, "absent.dat"_s, "stack.dat"_s});
        QJsonParseError error;
        const QJsonObject document = QJsonDocument::fromJson(run.out, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(document["programs"_s].toArray().size(), 2);
        QCOMPARE(document["programs"_s].toArray()[1].toObject()["program"_s].toString(), "stack.dat"_s);
        QCOMPARE(run.complaints.count(u'\n'), 1);
    }

    void everyRowOfATableHasItsFields()
    {
#ifdef Q_OS_WIN
        QSKIP("no file has such a name on Windows");
#endif
        putFile("a \"comma\", b.dat"_s, fileText("stack.dat"_s).replace("SL", "\"S,L\""));
        const CheckRun run = runCheck({"--csv"_s, "stack.dat"_s, "a \"comma\", b.dat"_s});
        QStringList lines = run.lines();
        QCOMPARE(lines.takeLast(), QString());
        const int fields = lines[0].count(u',');
        QVERIFY(lines.filter("\"\"comma\"\""_s).size() > 5);
        for (QString line : lines) {
            line.replace("\"a \"\"comma\"\", b.dat\""_s, "a"_s).replace("\"\"\"S,L\"\"\""_s, "SL"_s);
            QVERIFY2(line.count(u',') == fields, qPrintable(line));
        }
    }

    void aCutProgramsDumpSaysSo()
    {
        putFile("cut.dat"_s, "0 0 900 30 0 0 0 0 0 0 0 0 0 0 0 0 0 1000000000 ---NoGroup--- 1\n");
        const QByteArray dump = runCheck({"--start-all"_s, "30"_s, "--vcd"_s, "cut.dat"_s}).out;
        QVERIFY(dump.endsWith("not listed $end\n"));
        qint64 lastMs = -1;
        for (const QByteArray& line : dump.split('\n')) {
            if (line.startsWith('#')) {
                QVERIFY2(line.mid(1).toLongLong() > lastMs, line.constData());
                lastMs = line.mid(1).toLongLong();
            }
        }
        QVERIFY(lastMs > 1000);
    }

    void longDumpsAreCutAndSaySo()
    {
        putFile("long.dat"_s,
            "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0.5 A 2147483647\n1 0 0 0 0 0 0 0 0 0 1 0 0 0 0 0 0 1 "
            "---NoGroup--- 1\n");
        const CheckRun wire = runCheck({"--wire"_s, "long.dat"_s});
        QVERIFY(wire.out.endsWith("# more messages follow that are not listed\n"));
        QVERIFY(runCheck({"--vcd"_s, "long.dat"_s}).out.endsWith("not listed $end\n"));
        QVERIFY(runCheck({"--csv"_s, "long.dat"_s}).out.size() < 2000);
    }
};

NELVO_TEST_MAIN(CheckOutputsTest)
#include "checkoutputs.moc"
