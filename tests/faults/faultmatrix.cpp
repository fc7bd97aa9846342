// A station beside a chamber with every kind of fault, at every rate and latency: what is promised whatever
// happens on the link, and how many readings stood under the wrong channel.
//
// faultmatrix [--sample N] [--seed N] [--minutes N]: N of the cases, drawn by the seed, or all of them; so
// much station time each. Prints a line a case and ends with status 1 when something did not hold.

#include "faults/faultrun.h"

#include "support/testmain.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>

using namespace TestText;

namespace {

struct Plan
{
    int sample = 0; // 0 for all
    quint64 seed = 1;
    qint64 caseMs = 0;
};

Plan readPlan()
{
    QCommandLineParser parser;
    parser.addOptions({{"sample"_s, "how many cases; 0 for all"_s, "n"_s, "0"_s},
        {"seed"_s, "of everything"_s, "n"_s, "1"_s},
        {"minutes"_s, "of station time a case"_s, "n"_s, "2"_s}});
    parser.process(*QCoreApplication::instance());
    Plan plan;
    plan.sample = parser.value("sample"_s).toInt();
    plan.seed = parser.value("seed"_s).toULongLong();
    plan.caseMs = static_cast<qint64>(60000.0 * parser.value("minutes"_s).toDouble());
    return plan;
}

QVector<FaultCase> chosenCases(const Plan& plan)
{
    QVector<FaultCase> cases = faultCases();
    if (plan.sample == 0) {
        return cases;
    }
    Chamber::RandomSource random(plan.seed, 0);
    while (cases.size() > plan.sample) {
        cases.remove(random.below(cases.size()));
    }
    return cases;
}

void printHead()
{
    std::printf("%-18s %7s %6s %8s %8s %8s %7s %9s %6s %6s %8s %8s\n", "faults", "latency", "struck",
        "shutters", "set pts", "readings", "wrong", "wrong for", "spells", "told", "tick", "action");
}

void printCase(const FaultCase& tried, const FaultRun& run)
{
    const Attribution& attribution = run.attribution();
    std::printf("%-18s %4d ms %6d %8d %8d %8d %7d %7.1f s %6d %6d %5.1f ms %5.1f ms\n",
        qPrintable(tried.name), tried.latencyMs, run.faults(), run.wire().shutterCommands(),
        run.wire().setPoints(), attribution.readings(), attribution.wrongReadings(), attribution.wrongSec(),
        attribution.spells().size(), run.toldSpells(), run.worstTickMs(), run.worstActionMs());
    std::fflush(stdout);
}

int playAll()
{
    const Plan plan = readPlan();
    int failed = 0;
    printHead();
    for (const FaultCase& tried : chosenCases(plan)) {
        MessageCapture messages;
        FaultRun run(tried, plan.seed);
        QString wrong = run.play(plan.caseMs);
        const QStringList warnings = MessageCapture::warnings();
        if (wrong.isEmpty() && !warnings.isEmpty()) {
            wrong = "the toolkit warns: "_s + warnings.first();
        }
        printCase(tried, run);
        if (wrong.isEmpty()) {
            wrong = run.slowness();
        }
        if (!wrong.isEmpty()) {
            ++failed;
            std::printf("  DOES NOT HOLD: %s\n", qPrintable(wrong));
        }
    }
    std::printf("%d failed\n", failed);
    return failed == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    return runIsolated(argc, argv, &playAll);
}
