// The shipped station at the simulator as time passes: a program over and over, ramps, shutters.
//
// realtimesoak [--hours N] [--seed N] [--folder PATH] [--most-growth MB]: N hours in that folder, which keeps
// the station's files, or in one of its own. Prints the station's figures 24 times, at most every 10 s. Ends
// with status 1 when the station does not answer, when no program was played, when too many ticks came late
// and when its memory grew by more than MB; the full chart takes some 31 MB, in 25 hours.

#include "support/files.h"
#include "support/panel.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <random>

using namespace TestText;

namespace {

constexpr double hourMs = 3600000.0;
constexpr int shutters = 7;
const QString programName = "soak.dat"_s;

struct Plan
{
    double hours = 12.0;
    unsigned seed = 1;
    double mostGrowthMb = 40.0;
};

struct Lateness
{
    int ticks = 0;
    double worstMs = 0.0;
};

double megabytes(qint64 process)
{
    const QList<QByteArray> pages = fileText("/proc/%1/statm"_s.arg(process)).split(' ');
    return pages.value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

double processorSec(qint64 process)
{
    const QByteArray all = fileText("/proc/%1/stat"_s.arg(process));
    const QList<QByteArray> words = all.mid(all.lastIndexOf(')') + 2).split(' ');
    return (words.value(11).toDouble() + words.value(12).toDouble())
        / static_cast<double>(sysconf(_SC_CLK_TCK));
}

// A superlattice with a ramp before it, half a minute in all.
QByteArray programText()
{
    const auto line = [](const char* substrate, const char* open, const char* group) {
        return QByteArray("0\t0\t0\t0\t0\t0\t0\t0\t") + substrate + "\t0\t" + open + '\t' + group + '\n';
    };
    QByteArray text = line("60", "0\t0\t0\t1\t0\t0\t0\t5", "---NoGroup---\t1");
    text += line("0", "0\t1\t0\t1\t0\t0\t0\t0.5", "SL\t20");
    text += line("0", "0\t1\t0\t1\t1\t0\t0\t0.5", "SL\t20");
    return text + line("40", "0\t0\t0\t0\t0\t0\t0\t5", "---NoGroup---\t1");
}

class RealTimeSoak
{
public:
    explicit RealTimeSoak(const Plan& chosen)
        : plan(chosen)
        , random(chosen.seed)
        , chamber({"--fault"_s, "late=0.001"_s, "--fault"_s, "duplicate=0.001"_s, "--fault"_s, "er=0.001"_s})
    {
    }

    bool run()
    {
        putFile(programName, programText());
        if (!station.isUp()) {
            std::printf("FAILED: no window\n");
            return false;
        }
        const double tellEveryMs = std::max(10000.0, plan.hours * hourMs / 24.0);
        double nextTellMs = 0.0;
        clock.start();
        for (int second = 1; passedMs() < plan.hours * hourMs; ++second) {
            act();
            while (passedMs() < 1000.0 * second) {
                station.process().forget(); // else its pipe would fill, and then it would stand still
                chamber.forget();
                QThread::msleep(20);
            }
            if (passedMs() >= nextTellMs) {
                nextTellMs += tellEveryMs;
                tell();
            }
        }
        tell();
        return isFine();
    }

private:
    double passedMs() const { return static_cast<double>(clock.elapsed()); }
    int below(int number) { return static_cast<int>(random() % static_cast<unsigned>(number)); }

    void act()
    {
        if (station.text("ProgRun"_s) == "Run"_s) {
            station.load(programName);
            station.click("ProgRun"_s);
            ++programs;
            return;
        }
        switch (below(10)) {
        case 0:
            station.click(cell("CS", below(shutters)));
            break;
        case 1:
            ramp(below(7));
            break;
        default:
            break;
        }
    }

    // Starts one, or stops the one that runs.
    void ramp(int channel)
    {
        station.type(cell("TDeg", channel), QString::number(20 + below(80)));
        station.type(cell("DTime", channel), "5"_s);
        station.click(cell("RunT", channel));
    }

    void tell()
    {
        const double mb = megabytes(station.process().id());
        startMb = startMb == 0.0 ? mb : startMb;
        mostMb = std::max(mostMb, mb);
        const Lateness late = lateness();
        std::printf(
            "%8.0f s  resident %6.1f MB  processor %8.1f s  programs %6d  late ticks %5d, worst %.0f ms\n",
            passedMs() / 1000.0, mb, processorSec(station.process().id()), programs, late.ticks,
            late.worstMs);
        std::fflush(stdout);
    }

    static Lateness lateness()
    {
        Lateness late;
        for (const QString& name : QDir().entryList({journalFile + "*"_s}, QDir::Files)) {
            for (const QByteArray& line : fileText(name).split('\n')) {
                const int ms = line.indexOf("\tlate-tick\tms=");
                if (ms >= 0) {
                    ++late.ticks;
                    late.worstMs = std::max(late.worstMs, line.mid(line.indexOf('=') + 1).toDouble());
                }
            }
        }
        return late;
    }

    // A single tick may be late, and by any time, where others use the machine; many are the station's own.
    bool isFine() const
    {
        constexpr double oneIn = 10000.0;
        constexpr double always = 50.0;
        const double ticks = passedMs() / 10.0;
        const bool isLate = lateness().ticks > always + ticks / oneIn;
        const bool hasGrown = mostMb - startMb > plan.mostGrowthMb;
        const bool hasPlayed = fileText(journalFile).contains("\tstep\t");
        std::printf("%s%s%s", isLate ? "TOO MUCH: late ticks\n" : "", hasGrown ? "TOO MUCH: memory\n" : "",
            hasPlayed ? "" : "FAILED: no program was played\n");
        return !isLate && !hasGrown && hasPlayed;
    }

    const Plan plan;
    std::mt19937 random;
    Chamber chamber;
    HandledStation station;
    QElapsedTimer clock;
    int programs = 0;
    double startMb = 0.0;
    double mostMb = 0.0;
};

int play()
{
    QCommandLineParser parser;
    parser.addOptions(
        {{"hours"_s, "as time passes"_s, "n"_s, "12"_s}, {"seed"_s, "of the actions"_s, "n"_s, "1"_s},
            {"folder"_s, "that keeps the station's files"_s, "path"_s, "."_s},
            {"most-growth"_s, "of memory, in MB"_s, "mb"_s, "40"_s}});
    parser.process(*QCoreApplication::instance());
    Plan plan;
    plan.hours = parser.value("hours"_s).toDouble();
    plan.seed = parser.value("seed"_s).toUInt();
    plan.mostGrowthMb = parser.value("most-growth"_s).toDouble();
    if (!QDir::setCurrent(parser.value("folder"_s))) {
        std::printf("FAILED: no such folder\n");
        return 1;
    }
    return RealTimeSoak(plan).run() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    return runIsolated(argc, argv, &play);
}
