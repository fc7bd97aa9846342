// Days of a station at work in minutes: the real window at the simulated chamber, an operator who plays at
// random, and a model of the rules that knows every byte to come.
//
// soak [--hours N] [--seed N] [--window-hours N] [--most-growth PERCENT]: N hours of station time, a new
// window, in the other language, every so many. Ends with status 1 at the first difference from the rules,
// when too many ticks or actions were slow, and when the memory grew by more than PERCENT since the chart was
// full or, in a run too short for that, since the first window was closed.

#include "soak/randomoperator.h"
#include "soak/screen.h"

#include "app/language.h"
#include "support/files.h"
#include "support/processfigures.h"
#include "support/testmain.h"

#include <QCommandLineParser>
#include <QFile>
#include <QTabWidget>
#include <QTranslator>

#include <algorithm>
#include <cstdio>

using namespace TestText;

namespace {

constexpr qint64 hourMs = 3600000;
constexpr qint64 dayMs = 24 * hourMs;
// By now the chart has as many points as it keeps: 200,000 of a round each.
constexpr qint64 fullChartMs = 25 * hourMs;
constexpr double anyGrowth = 1e9; // percent

struct Plan
{
    quint64 seed = 1;
    qint64 totalMs = 0;
    qint64 windowMs = 0;
    double mostGrowth = anyGrowth; // percent
};

// Replies that are late, come twice, in pieces or as something else, each once in a thousand; none that would
// hold the bus for ever.
Chamber::Options chamberOptions(quint64 seed)
{
    using Kind = Chamber::FaultKind;
    Chamber::Options options;
    options.seed = seed;
    for (const Kind kind : {Kind::Late, Kind::Duplicate, Kind::Garbled, Kind::Split, Kind::Merged, Kind::Er,
             Kind::WrongLength}) {
        options.faultRates.at(static_cast<size_t>(kind)) = 0.001;
    }
    return options;
}

class Soak
{
public:
    explicit Soak(const Plan& chosen)
        : plan(chosen)
        , station(chamberOptions(chosen.seed), model)
        , hands(chosen.seed, station, model)
        , startMs(DrivenClock::nowMs())
    {
    }

    /// False at the first difference from the rules, and when it took too much time or memory.
    bool run()
    {
        for (int window = 0; passedMs() < plan.totalMs && model.divergence().isEmpty(); ++window) {
            playWindow(languages()[window % languages().size()]);
        }
        tellFigures("end");
        if (model.divergence().isEmpty()) {
            return isCheap();
        }
        std::printf("DIVERGED: %s\n", qPrintable(model.divergence()));
        for (const QString& action : hands.latest()) {
            std::printf("  %s\n", qPrintable(action));
        }
        return false;
    }

private:
    qint64 passedMs() const { return DrivenClock::nowMs() - startMs; }

    bool isCheap() const
    {
        QStringList complaints{
            station.tickCosts().complaint("ticks"_s), station.actionCosts().complaint("actions"_s)};
        if (growth(mostMb) > plan.mostGrowth) {
            complaints.append("the memory grew by %1 %"_s.arg(growth(mostMb)));
        }
        complaints.removeAll(QString());
        for (const QString& complaint : complaints) {
            std::printf("TOO MUCH: %s\n", qPrintable(complaint));
        }
        return complaints.isEmpty();
    }

    // The chart is full or, in short runs, the first window is closed.
    void noteConstantMemory()
    {
        if (constantMb == 0.0) {
            constantMb = residentMb();
            mostMb = 0.0;
        }
    }

    // In percent, since it was to be constant.
    double growth(double mb) const { return constantMb > 0.0 ? 100.0 * (mb / constantMb - 1.0) : 0.0; }

    void playWindow(const Language& language)
    {
        QTranslator translator;
        speak(language, translator);
        model.open();
        station.open();
        station.window().show();
        const qint64 openedMs = passedMs();
        if (openedMs == 0) {
            tellFigures("start");
        }
        bool isFull = false;
        while (passedMs() - openedMs < plan.windowMs && passedMs() < plan.totalMs && hold()) {
            rest(pauseMs());
            noteCostliest(station.hadCostliestTick(), beforeWorstTick);
            if (hold()) {
                station.act([this] { hands.act(); });
                noteCostliest(station.wasCostliestAction(), worstAction);
            }
            if (!isFull && passedMs() - openedMs > fullChartMs) {
                isFull = true;
                noteConstantMemory();
                tellFigures("chart full");
            }
            if (passedMs() >= nextTellMs) {
                nextTellMs += dayMs;
                tellFigures("day");
                checkRecord();
            }
        }
        checkRecord();
        station.close();
        noteConstantMemory();
        tellFigures("closed");
        QCoreApplication::removeTranslator(&translator);
    }

    // Mostly one thing after the other, at times nothing for minutes.
    qint64 pauseMs()
    {
        const int kind = hands.below(10);
        return hands.pauseMs(kind == 0 ? 180000 : (kind < 4 ? 20000 : 2000));
    }

    // In longer pauses the chart is in front and the screen goes dark: painting would be most of the work,
    // and nobody looks.
    void rest(qint64 ms)
    {
        constexpr qint64 lookedAtMs = 2000;
        if (ms > lookedAtMs) {
            station.find<QTabWidget>("tabWidget"_s).setCurrentIndex(1);
            station.window().hide();
        }
        station.run(ms);
        station.window().show();
    }

    // Holds what was sent and what is shown against the rules.
    bool hold()
    {
        model.checkOutstanding();
        const QString difference = panelDifference(station, model);
        if (!difference.isEmpty()) {
            model.diverge(difference);
        }
        const QStringList warnings = MessageCapture::warnings();
        if (!warnings.isEmpty()) {
            model.diverge("the toolkit warns: "_s + warnings.first());
        }
        return model.divergence().isEmpty();
    }

    // What was done last before the costliest tick tells where its time went.
    void noteCostliest(bool isCostliest, QString& after) const
    {
        if (isCostliest && !hands.latest().isEmpty()) {
            after = hands.latest().last();
        }
    }

    // Every round has its line. The file goes afterwards: it would grow by 15 MB a day.
    void checkRecord()
    {
        const int lines = fileText(recordFile).count('\n');
        if (lines != model.cells.records()) {
            model.diverge("the record has %1 lines of %2 rounds"_s.arg(lines).arg(model.cells.records()));
        }
        QFile::remove(recordFile);
        model.cells.forgetRecords();
    }

    void tellFigures(const char* when)
    {
        const double mb = residentMb();
        mostMb = std::max(mostMb, mb);
        std::printf("%-10s %7.2f h  actions %7d  set points %7d  shutter commands %7d  steps %7d  "
                    "resident %7.1f MB (%+.2f %%, heap %.1f MB)",
            when, static_cast<double>(passedMs()) / hourMs, hands.actions(), model.cells.sentSetPoints(),
            model.shutters.sentCommands(), model.program.startedSteps(), mb, growth(mb), heapMb());
        tellWorst("tick", station.tickCosts(), "after", beforeWorstTick);
        tellWorst("action", station.actionCosts(), "which", worstAction);
        std::printf("\n");
        std::fflush(stdout);
    }

    static void tellWorst(const char* what, const Costs& costs, const char* word, const QString& action)
    {
        std::printf("  worst %s %.1f ms (%.1f by the clock), %s '%s'", what, costs.worstMs(),
            costs.worstWallMs(), word, qPrintable(action));
    }

    const Plan plan;
    MessageCapture messages;
    StationModel model;
    DrivenChamber station;
    RandomOperator hands;
    const qint64 startMs;
    qint64 nextTellMs = dayMs;
    double constantMb = 0.0; // from here on the memory is to stay as it is; 0 before
    double mostMb = 0.0; // since then
    QString beforeWorstTick;
    QString worstAction;
};

Plan readPlan(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOptions(
        {{"hours"_s, "of station time"_s, "n"_s, "2"_s}, {"seed"_s, "of everything"_s, "n"_s, "1"_s},
            {"window-hours"_s, "until a new window"_s, "n"_s, "48"_s},
            {"most-growth"_s, "of memory, in percent"_s, "n"_s, QString::number(anyGrowth)}});
    parser.process(arguments);
    Plan plan;
    plan.seed = parser.value("seed"_s).toULongLong();
    plan.totalMs = static_cast<qint64>(parser.value("hours"_s).toDouble() * hourMs);
    plan.mostGrowth = parser.value("most-growth"_s).toDouble();
    plan.windowMs = static_cast<qint64>(parser.value("window-hours"_s).toDouble() * hourMs);
    return plan;
}

} // namespace

int main(int argc, char* argv[])
{
    return runIsolated(
        argc, argv, [] { return Soak(readPlan(QCoreApplication::arguments())).run() ? 0 : 1; });
}
