// The system's clock is set while the program runs, by a second, an hour or a day, forward or back: no set
// point and no step is moved.

#include "support/files.h"
#include "support/journalevents.h"
#include "support/panel.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace TestText;

namespace {

constexpr int hourSec = 3600;
const QString stepFile = "faketime"_s;
const QByteArray header = "0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t";

void setClockBy(int seconds)
{
    putFile(stepFile, (seconds < 0 ? "" : "+") + QByteArray::number(seconds) + '\n');
}

QStringList steppedClock()
{
#ifdef FAKETIME_LIBRARY
    return {"LD_PRELOAD=" FAKETIME_LIBRARY ""_s, "FAKETIME_NO_CACHE=1"_s, "FAKETIME_DONT_FAKE_MONOTONIC=1"_s,
        "FAKETIME_TIMESTAMP_FILE="_s + QDir::current().filePath(stepFile),
        // The sanitizers want to be loaded first and may be second here.
        "ASAN_OPTIONS=verify_asan_link_order=0"_s};
#else
    return {};
#endif
}

int recordLines()
{
    return fileText(recordFile).count('\n');
}

// When the chamber's shutters moved, in s.
QVector<double> shutterTimes(const QString& log)
{
    static const QRegularExpression event("^([0-9.]+) shutters "_s, QRegularExpression::MultilineOption);
    QVector<double> times;
    for (auto found = event.globalMatch(log); found.hasNext();) {
        times.append(found.next().captured(1).toDouble());
    }
    return times;
}

} // namespace

class ClockStepsTest : public QObject
{
    Q_OBJECT

    // Sets the clock and waits for signs of life: three more records and an answer from the window. The
    // journal tells by how much it was set, and of no sleep.
    void step(int seconds)
    {
        QFile::remove(journalFile);
        const qint64 before = station->systemClockMs();
        setClockBy(seconds);
        const bool isLong = qAbs(seconds) >= hourSec; // a second may pass meanwhile
        QVERIFY(!isLong || qAbs(station->systemClockMs() - before) > 1000LL * (hourSec - 100));
        const int lines = recordLines();
        QVERIFY(station->process().waitFor([lines](const QString&) { return recordLines() >= lines + 3; }));
        QVERIFY(station->answers());
        qint64 toldMs = 0;
        for (const QString& event : journalEvents().filter(QRegularExpression("^(clock-stepped|slept) "_s))) {
            QVERIFY2(event.startsWith("clock-stepped ms="_s), qPrintable(event));
            toldMs += event.section(u'=', 1).toLongLong();
        }
        QVERIFY2(qAbs(toldMs - 1000LL * seconds) < 300, qPrintable(QString::number(toldMs)));
    }

    std::unique_ptr<Chamber> chamber;
    std::unique_ptr<HandledStation> station;

private slots:
    void init()
    {
#ifndef FAKETIME_LIBRARY
        QSKIP("needs libfaketime");
#endif
        setClockBy(0);
        chamber = std::make_unique<Chamber>();
        station = std::make_unique<HandledStation>(steppedClock());
        QVERIFY(station->isUp());
        // Temperatures are known, so that ramps start from them.
        QVERIFY(station->process().waitFor([](const QString&) { return recordLines() > 1; }));
    }

    void cleanup()
    {
        station.reset();
        chamber.reset();
        QFile::remove(recordFile);
        QFile::remove(stateFile);
    }

    void aRampSendsNoSetPointEarly_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::newRow("a second forward") << 1;
        QTest::newRow("a second back") << -1;
        QTest::newRow("an hour forward") << hourSec;
        QTest::newRow("an hour back") << -hourSec;
        QTest::newRow("a day forward") << 24 * hourSec;
        QTest::newRow("a day back") << -24 * hourSec;
    }

    void aRampSendsNoSetPointEarly()
    {
        QFETCH(int, seconds);
        station->type(cell("TDeg", 0), "400"_s);
        station->type(cell("DTime", 0), "10"_s);
        station->click(cell("RunT", 0));
        QVERIFY(chamber->waitForText("setpoint 01"_s));
        step(seconds);
        QCOMPARE(chamber->output().count("setpoint"_s), 1);
        QCOMPARE(station->text(cell("RunT", 0)), "Stop"_s);
        // Its elapsed time goes on from where it was.
        const double minutes = station->text(cell("ETime", 0)).toDouble();
        QVERIFY2(minutes >= 0.01 && minutes < 0.9, qPrintable(station->text(cell("ETime", 0))));
    }

    void aProgramKeepsItsSteps_data()
    {
        aRampSendsNoSetPointEarly_data();
    }

    void aProgramKeepsItsSteps()
    {
        QFETCH(int, seconds);
        QByteArray program;
        for (int k = 0; k < 8; ++k) {
            program += header + (k % 2 == 0 ? "1" : "0") + "\t0\t0\t0\t0\t0\t0\t1\t---NoGroup---\t1\n";
        }
        putFile("steps.dat"_s, program);
        station->load("steps.dat"_s);
        chamber->forget();
        station->click("ProgRun"_s);
        QVERIFY(chamber->waitForText("shutters "_s, 2));
        step(seconds);
        QVERIFY(chamber->waitForText("shutters "_s, 8));
        const QVector<double> times = shutterTimes(chamber->output());
        for (int k = 1; k < times.size(); ++k) {
            // After a step that a busy machine held up the next one comes in time: the sooner for it.
            QVERIFY2(times[k] - times[k - 1] > 0.5, qPrintable(chamber->output()));
        }
        QVERIFY(station->process().waitFor(
            [this](const QString&) { return station->text("ProgRun"_s) == "Run"_s; }));
    }

    void aHoldGoesOnWaiting_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::newRow("an hour forward") << hourSec;
        QTest::newRow("an hour back") << -hourSec;
    }

    void aHoldGoesOnWaiting()
    {
        QFETCH(int, seconds);
        putFile("hold.dat"_s,
            header + "1\t0\t0\t0\t0\t0\t0\t-1\t---NoGroup---\t1\n" + header
                + "0\t1\t0\t0\t0\t0\t0\t60\t---NoGroup---\t1\n");
        station->load("hold.dat"_s);
        chamber->forget();
        station->click("ProgRun"_s);
        QVERIFY(chamber->waitForText("shutters oxxxxxx"_s));
        step(seconds);
        QCOMPARE(station->text("ProgPause"_s), "Resume"_s);
        QCOMPARE(chamber->output().count("shutters"_s), 1);
        station->click("ProgPause"_s);
        QVERIFY(chamber->waitForText("shutters xoxxxxx"_s));
        QCOMPARE(station->text("ProgRun"_s), "Stop"_s);
    }
};

NELVO_TEST_MAIN(ClockStepsTest)
#include "clocksteps.moc"
