// The station's process is stopped for a second by a signal, in a ramp and a program, and goes on.

#include "support/files.h"
#include "support/panel.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>

using namespace TestText;

namespace {

constexpr qint64 stoppedMs = 1000;

QString journal()
{
    return QString::fromUtf8(fileText(journalFile));
}

} // namespace

class StoppedStationTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Chamber> chamber;
    std::unique_ptr<HandledStation> station;

    void stop()
    {
        const auto id = static_cast<pid_t>(station->process().id());
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(kill(id, SIGSTOP), 0);
        QTRY_VERIFY(timer.elapsed() >= stoppedMs);
        QCOMPARE(kill(id, SIGCONT), 0);
    }

private slots:
    void init()
    {
        chamber = std::make_unique<Chamber>();
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
    }

    void cleanup()
    {
        station.reset();
        chamber.reset();
        QFile::remove(recordFile);
        QFile::remove(stateFile);
        QFile::remove(journalFile);
    }

    void aRampAndAProgramGoOn()
    {
        QVERIFY(
            station->process().waitFor([](const QString&) { return fileText(recordFile).count('\n') > 1; }));
        const QByteArray header = "0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t";
        const QByteArray end = "\t0\t0\t0\t0\t0\t0\t2\t---NoGroup---\t1\n";
        putFile("steps.dat"_s, header + '1' + end + header + '0' + end + header + '1' + end);
        station->load("steps.dat"_s);
        station->type(cell("TDeg", 3), "100"_s);
        station->type(cell("DTime", 3), "10"_s);
        station->click(cell("RunT", 3));
        station->click("ProgRun"_s);
        QVERIFY(chamber->waitForText("setpoint 04"_s));
        stop();
        QVERIFY(station->process().waitFor(
            [](const QString&) { return journal().contains("program-end\twhy=over"_s); }));
        QVERIFY(journal().contains("late-tick\tms="_s));
        QCOMPARE(journal().count("\tstep\t"_s), 3);
        QCOMPARE(station->text(cell("RunT", 3)), "Stop"_s);
        QCOMPARE(chamber->output().count("setpoint"_s), 1);
        QVERIFY(station->answers());
    }
};

NELVO_TEST_MAIN(StoppedStationTest)
#include "stoppedstation.moc"
