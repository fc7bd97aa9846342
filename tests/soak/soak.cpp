// Days of a station at work in minutes: the real window at the simulated chamber, an operator who plays at
// random, and a model of the rules that knows every byte to come.
//
// soak [--hours N] [--seed N] [--window-hours N]: N hours of station time, a new window, in the other
// language, every so many. Ends with status 1 at the first difference from the rules.

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

#include <cstdio>

using namespace TestText;

namespace {

constexpr qint64 hourMs = 3600000;
constexpr qint64 dayMs = 24 * hourMs;
// By now the chart has as many points as it keeps: 200,000 of a round each.
constexpr qint64 fullChartMs = 25 * hourMs;

struct Plan
{
    quint64 seed = 1;
    qint64 totalMs = 0;
    qint64 windowMs = 0;
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

    /// False at the first difference from the rules.
    bool run()
    {
        for (int window = 0; passedMs() < plan.totalMs && model.divergence().isEmpty(); ++window) {
            playWindow(languages()[window % languages().size()]);
        }
        tellFigures("end");
        if (model.divergence().isEmpty()) {
            return true;
        }
        std::printf("DIVERGED: %s\n", qPrintable(model.divergence()));
        for (const QString& action : hands.latest()) {
            std::printf("  %s\n", qPrintable(action));
        }
        return false;
    }

private:
    qint64 passedMs() const { return DrivenClock::nowMs() - startMs; }

    void playWindow(const Language& language)
    {
        QTranslator translator;
        speak(language, translator);
        model.open();
        station.open();
        station.window().show();
        const qint64 openedMs = passedMs();
        bool isFull = false;
        while (passedMs() - openedMs < plan.windowMs && passedMs() < plan.totalMs && hold()) {
            rest(pauseMs());
            noteWorstTick();
            if (hold()) {
                hands.act();
                station.settle();
            }
            if (!isFull && passedMs() - openedMs > fullChartMs) {
                isFull = true;
                fullMb = residentMb();
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

    // What was done before the costliest tick tells where its time went.
    void noteWorstTick()
    {
        if (station.worstTickMs() > worstMs) {
            worstMs = station.worstTickMs();
            beforeWorst = hands.latest().isEmpty() ? QString() : hands.latest().last();
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
        std::printf("%-10s %7.2f h  actions %7d  set points %7d  shutter commands %7d  steps %7d  "
                    "resident %7.1f MB (%+.2f %% since the chart was full)  worst tick %.1f ms after '%s'\n",
            when, static_cast<double>(passedMs()) / hourMs, hands.actions(), model.cells.sentSetPoints(),
            model.shutters.sentCommands(), model.program.startedSteps(), residentMb(),
            fullMb > 0.0 ? 100.0 * (residentMb() / fullMb - 1.0) : 0.0, worstMs, qPrintable(beforeWorst));
        std::fflush(stdout);
    }

    const Plan plan;
    MessageCapture messages;
    StationModel model;
    DrivenChamber station;
    RandomOperator hands;
    const qint64 startMs;
    qint64 nextTellMs = dayMs;
    double fullMb = 0.0;
    double worstMs = 0.0;
    QString beforeWorst;
};

Plan readPlan(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOptions(
        {{"hours"_s, "of station time"_s, "n"_s, "2"_s}, {"seed"_s, "of everything"_s, "n"_s, "1"_s},
            {"window-hours"_s, "until a new window"_s, "n"_s, "240"_s}});
    parser.process(arguments);
    Plan plan;
    plan.seed = parser.value("seed"_s).toULongLong();
    plan.totalMs = static_cast<qint64>(parser.value("hours"_s).toDouble() * hourMs);
    plan.windowMs = static_cast<qint64>(parser.value("window-hours"_s).toDouble() * hourMs);
    return plan;
}

} // namespace

int main(int argc, char* argv[])
{
    return runIsolated(
        argc, argv, [] { return Soak(readPlan(QCoreApplication::arguments())).run() ? 0 : 1; });
}
