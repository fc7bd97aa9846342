// The player: what a tick and a step's start cost, and how well the steps of a long run keep their time.

#include "app/mbemain.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"
#include "benchmarks/support/peer.h"
#include "support/programtab.h"
#include "support/ticks.h"

#include <QElapsedTimer>

#include <cmath>

namespace {

constexpr int ticks = 2000;
constexpr int starts = 500;
constexpr int runSteps = 500;
constexpr double runStepMs = 50.0;
constexpr int runPatienceMs = 3 * static_cast<int>(runSteps * runStepMs);

ProgramStep step(double timeSec, const QString& group, int times, bool open)
{
    ProgramStep result;
    result.timeSec = timeSec;
    result.group = group;
    result.times = times;
    result.shutters.fill(open);
    return result;
}

// A program that plays on a held clock, its first step begun.
class HeldPlayer
{
public:
    explicit HeldPlayer(const QVector<ProgramStep>& steps)
        : tab(main)
    {
        tab.show();
        tab.load(steps);
        tab.click("Run");
        tab.tick();
    }

    // What ticks cost that come `afterMs` apart, in microseconds, with the window repainted between them.
    std::vector<double> timeTicks(int count, qint64 afterMs)
    {
        std::vector<double> microseconds;
        for (int i = 0; i < count; ++i) {
            QElapsedTimer timer;
            timer.start();
            tab.tick(afterMs);
            microseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e3);
            settle();
        }
        return microseconds;
    }

private:
    HeldTicks held;
    DrivenClock clock;
    MBEMain main;
    ProgramTab tab;
};

void measureTicks(const Figures& figures)
{
    HeldPlayer player({step(1e9, QStringLiteral("A"), 1, true)});
    const std::vector<double> costs = player.timeTicks(ticks, 10);
    figures.atMost("a tick while a step runs, median", 100.0, median(costs), "us");
    figures.show("  worst", worst(costs), "us");
}

void measureStarts(const Figures& figures)
{
    QVector<ProgramStep> steps{step(60.0, QStringLiteral("A"), 2147483647, true),
        step(60.0, QStringLiteral("A"), 1, false), step(0.0, QStringLiteral("B"), 1, false)};
    steps[0].setPoints.fill(QStringLiteral("40"));
    steps[1].setPoints.fill(QStringLiteral("20"));
    HeldPlayer player(steps);
    const std::vector<double> costs = player.timeTicks(starts, 60001);
    figures.atMost("a step's start: all shutters, all ramps, median", 3000.0, median(costs), "us");
    figures.show("  worst", worst(costs), "us");
}

// A step is a shutter command at the adapter.
void measureRun(const Figures& figures)
{
    Peer peer(0);
    auto main = std::make_unique<MBEMain>();
    ProgramTab tab(*main);
    tab.show();
    tab.load({step(runStepMs / 1000.0, QStringLiteral("A"), runSteps / 2, true),
        step(runStepMs / 1000.0, QStringLiteral("A"), 1, false), step(0.0, QStringLiteral("B"), 1, false)});
    tab.click("Run");
    QElapsedTimer patience;
    patience.start();
    while (tab.isRunning() && patience.elapsed() < runPatienceMs) {
        letRun(50);
    }
    letRun(100); // the last command may be on its way
    main.reset();

    // The first command is that of the station's start. On a machine that stands still for a step's time the
    // next step overtakes a command that waits for the bus.
    const std::vector<WireEvent> commands = only(WireEvent::Shutters, peer.finish());
    if (commands.size() < runSteps / 2) {
        fail("the steps gave no shutter commands");
    }
    const auto msBetween = [&commands](size_t first, size_t last) {
        return static_cast<double>(commands[last].ns - commands[first].ns) / 1e6;
    };
    std::vector<double> errors;
    for (size_t i = 2; i < commands.size(); ++i) {
        errors.push_back(std::abs(msBetween(i - 1, i) - runStepMs));
    }
    const double drift = msBetween(1, commands.size() - 1) / (runSteps - 1) - runStepMs;
    figures.atMost("500 steps of 50 ms, commands overtaken", 0.0,
        static_cast<double>(runSteps + 1) - static_cast<double>(commands.size()), "");
    figures.atMost("500 steps of 50 ms, off their time, median", 20.0, median(errors), "ms");
    figures.atMost("500 steps of 50 ms, off their time, worst", 20.0, worst(errors), "ms");
    figures.atMost("500 steps of 50 ms, added up, a step", 10.0, drift, "ms");
}

} // namespace

int main(int argc, char* argv[])
{
    if (isPeer(argc, argv)) {
        return peerMain(argc, argv);
    }
    return runBenchmark(argc, argv, [] {
        const Figures figures("program-player");
        measureTicks(figures);
        measureStarts(figures);
        measureRun(figures);
        return 0;
    });
}
