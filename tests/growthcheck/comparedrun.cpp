// Runs of a real station, held against their programs by its journal: nothing is found where nothing went
// wrong, and each fault and each of the operator's doings is.

#include "growthcheck/support/checkrun.h"
#include "growthcheck/support/playedchamber.h"
#include "growthcheck/support/programtext.h"
#include "program/programfile.h"
#include "support/files.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

using namespace TestText;

namespace {

constexpr int tickLimit = 100000;

} // namespace

class ComparedRunTest : public StationTest
{
    Q_OBJECT

    std::unique_ptr<PlayedChamber> chamber;

    void open()
    {
        QVERIFY(station->open());
        chamber = std::make_unique<PlayedChamber>(*station);
    }

    void load(const QString& fileName)
    {
        program().loadFile(fileName);
        chamber->settle();
        chamber->settle();
    }

    void loadText(const QStringList& descriptions)
    {
        putFile("program.dat"_s, programText(descriptions));
        load("program.dat"_s);
    }

    // Plays what is loaded; `look` is called behind every tick with the ms since Run.
    void play(const std::function<void(int)>& look = {})
    {
        program().click("Run");
        int heldTicks = 0;
        for (int tick = 1; program().isRunning() && tick < tickLimit; ++tick) {
            chamber->tick();
            if (look) {
                look(10 * tick);
            }
            heldTicks = program().isWaiting() ? heldTicks + 1 : 0;
            if (heldTicks == 300 && program().isRunning()) {
                program().click("Pause");
            }
        }
        QVERIFY(!program().isRunning());
    }

    static QJsonObject compared(const QString& fileName, const QString& journal = journalFile)
    {
        const CheckRun run = runCheck({"compare"_s, "--json"_s, fileName, journal});
        QJsonObject comparison = QJsonDocument::fromJson(run.out).object()["comparison"_s].toObject();
        comparison["status"_s] = run.status;
        return comparison;
    }

    // "ramp-stopped step 2 Ga".
    static QStringList findingsOf(const QJsonObject& comparison)
    {
        QStringList texts;
        for (const QJsonValue& value : comparison["findings"_s].toArray()) {
            const QJsonObject finding = value.toObject();
            QString text = finding["id"_s].toString() + " step %1"_s.arg(finding["step"_s].toInt());
            if (finding.contains("cell"_s)) {
                text += u' ' + finding["cell"_s].toString();
            }
            texts.append(text);
        }
        return texts;
    }

    static QStringList foundIn(const QString& fileName) { return findingsOf(compared(fileName)); }

private slots:
    void init()
    {
        QFile::remove(journalFile);
        QFile::remove(wireFile);
        qunsetenv("NELVO_JOURNAL");
        StationTest::init();
    }

    void cleanup()
    {
        chamber.reset();
        StationTest::cleanup();
    }

    void nothingIsFoundInAnExample_data()
    {
        QTest::addColumn<QString>("fileName");
        // The short ones.
        const QDir folder(QStringLiteral(NELVO_EXAMPLES));
        for (const char* name : {"superlattice.dat", "hold-point.dat", "doping-staircase.dat"}) {
            QTest::newRow(name) << folder.filePath(QLatin1String(name));
        }
    }

    void nothingIsFoundInAnExample()
    {
        QFETCH(QString, fileName);
        open();
        load(fileName);
        play();
        const QJsonObject comparison = compared(fileName);
        QCOMPARE(findingsOf(comparison).join(u'\n'), QString());
        QCOMPARE(comparison["status"_s].toInt(), 0);
        QCOMPARE(comparison["end"_s].toString(), "over"_s);
        QVERIFY(comparison["steps"_s].toArray().size() > 4);
    }

    void everyFaultIsFound_data()
    {
        QTest::addColumn<QByteArray>("fault");
        QTest::addColumn<double>("rate");
        QTest::addColumn<QStringList>("found");
        const auto add = [](const char* fault, double rate, const QStringList& found) {
            QTest::newRow(fault) << QByteArray(fault) << rate << found;
        };
        add("lost", 0.1, {"reading-failed"_s, "bus-held"_s});
        add("late", 0.1, {"bus-held"_s});
        add("duplicate", 0.1, {"unasked-line"_s});
        add("garbled", 0.2, {"reply-garbled"_s});
        add("split", 0.1, {"reply-split"_s});
        add("merged", 0.1, {"shutters-waited"_s});
        add("er", 0.1, {"reading-failed"_s});
        add("wrong-length", 0.1, {"reply-garbled"_s, "reading-failed"_s});
        add("silent", 0.05, {"reading-failed"_s, "bus-held"_s});
        add("cut", 0.02, {"link-lost"_s, "shutters-overtaken"_s});
        add("half-open", 0.02, {"bus-held"_s, "shutters-overtaken"_s});
    }

    void everyFaultIsFound()
    {
        QFETCH(QByteArray, fault);
        QFETCH(double, rate);
        QFETCH(QStringList, found);
        qputenv("NELVO_JOURNAL", "--wire");
        open();
        loadText({"t=20 MainCh=30"_s, "t=2 open=Ga,As4 g=SL x=10"_s, "t=2 open=Al,As4 g=SL"_s, "t=1"_s});
        Chamber::FaultKind kind{};
        QVERIFY(Chamber::faultFromName(fault, kind));
        Chamber::FaultRates rates = {};
        rates.at(static_cast<size_t>(kind)) = rate;
        chamber->setFaults(rates, 7);
        play();
        const QString all = findingsOf(compared("program.dat"_s, wireFile)).join(u'\n');
        for (const QString& id : found) {
            QVERIFY2(all.contains(id + u' '), qPrintable(id + " is not among:\n"_s + all));
        }
    }

    void theOperatorsDoingsAreFound_data()
    {
        QTest::addColumn<QString>("doing");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("nothing") << QString() << QStringList();
        QTest::newRow("a shutter") << "shutter"_s << QStringList{"shutters-by-hand step 2"_s};
        QTest::newRow("a ramp stopped") << "stop ramp"_s << QStringList{"ramp-stopped step 2 Ga"_s};
        QTest::newRow("a ramp begun") << "ramp"_s << QStringList{"ramp-by-hand step 2 Si"_s};
        QTest::newRow("an edit") << "edit"_s << QStringList{"edited step 3"_s};
        QTest::newRow("a pause") << "pause"_s << QStringList{"paused step 2"_s};
        QTest::newRow("a stop") << "stop"_s << QStringList{"stopped step 2"_s};
        QTest::newRow("no control") << "control"_s
                                    << QStringList{"set-point-missing step 2 Ga"_s, "control-off step 2"_s};
        QTest::newRow("out of use") << "in use"_s << QStringList{"in-use step 2 Be"_s};
    }

    void theOperatorsDoingsAreFound()
    {
        QFETCH(QString, doing);
        QFETCH(QStringList, found);
        open();
        loadText({"t=1 open=As4"_s, "t=130 open=Ga,As4 Ga=60"_s, "t=2"_s});
        play([&](int ms) {
            if (ms == 10000) {
                act(doing);
            } else if (ms == 10500 && doing == "pause"_s) {
                program().click("Pause");
            }
        });
        const QJsonObject comparison = compared("program.dat"_s);
        QCOMPARE(findingsOf(comparison).join(u'\n'), found.join(u'\n'));
        const bool isHarmless = found.isEmpty() || doing == "pause"_s || doing == "in use"_s;
        QCOMPARE(comparison["status"_s].toInt(), isHarmless ? 0 : 1);
    }

    void act(const QString& doing)
    {
        if (doing == "shutter"_s) {
            station->click(cell("CS", 0));
        } else if (doing == "stop ramp"_s) {
            station->click(cell("RunT", 1));
        } else if (doing == "ramp"_s) {
            station->pressRun(2, "30"_s, "1"_s);
        } else if (doing == "edit"_s) {
            program().time(2)->setText("3"_s);
        } else if (doing == "pause"_s) {
            program().click("Pause");
        } else if (doing == "stop"_s) {
            program().click("Run");
        } else if (doing == "control"_s) {
            station->togglePolling();
        } else if (doing == "in use"_s) {
            station->click(cell("TCActive", 0));
        }
    }

    void aRefusedRampIsFound()
    {
        open();
        chamber->setTemperature(1, 25.0);
        loadText({"t=60 Ga=90"_s, "t=1"_s});
        play();
        const QJsonObject comparison = compared("program.dat"_s);
        QCOMPARE(findingsOf(comparison), QStringList({"ramp-was-refused step 1 Ga"_s}));
        QCOMPARE(comparison["status"_s].toInt(), 1);
    }

    void anotherTableIsFound()
    {
        open();
        loadText({"t=1 open=Ga"_s, "t=1"_s});
        play();
        putFile("program.dat"_s, programText({"t=1 open=Ga"_s, "t=1 open=Al"_s, "t=1"_s}));
        QCOMPARE(foundIn("program.dat"_s), QStringList({"table-differs step 2"_s, "table-differs step 3"_s}));
    }

    void aHoldHasItsLength()
    {
        open();
        loadText({"t=1"_s, "t=-1 open=As4"_s, "t=1"_s});
        play();
        const QJsonObject hold = compared("program.dat"_s)["steps"_s].toArray()[1].toObject();
        QCOMPARE(hold["hold"_s].toBool(), true);
        QVERIFY(hold["pausedSec"_s].toDouble() >= 2.9 && hold["pausedSec"_s].toDouble() <= 3.1);
    }

    void theRunThatFitsIsTaken()
    {
        open();
        loadText({"t=1 open=Ga"_s, "t=1"_s});
        play();
        putFile("first.dat"_s, fileText("program.dat"_s));
        loadText({"t=2 open=Al"_s, "t=1"_s});
        play();
        QCOMPARE(compared("first.dat"_s)["run"_s].toInt(), 1);
        QCOMPARE(compared("program.dat"_s)["run"_s].toInt(), 2);
        QCOMPARE(runCheck({"compare"_s, "--run"_s, "1"_s, "program.dat"_s, journalFile}).status, 1);
        QCOMPARE(runCheck({"compare"_s, "--run"_s, "3"_s, "program.dat"_s, journalFile}).status, 2);
        QCOMPARE(runCheck({"compare"_s, "program.dat"_s, "absent.log"_s}).status, 2);
    }

    void aRunThatIsBrokenOffIsFound()
    {
        open();
        loadText({"t=1 open=Ga"_s, "t=5"_s});
        program().click("Run");
        chamber->ticks(200);
        QCOMPARE(foundIn("program.dat"_s), QStringList({"still-runs step 2"_s}));
        chamber.reset();
        station->close();
        QVERIFY(station->open());
        QCOMPARE(foundIn("program.dat"_s), QStringList({"broken-off step 2"_s}));
    }
};

NELVO_TEST_MAIN(ComparedRunTest)
#include "comparedrun.moc"
