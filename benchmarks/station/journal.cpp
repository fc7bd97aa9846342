// What the journal costs: a line, and the share of a core that its lines take while every byte of a busy link
// is written down, with a program of the shortest steps and without one.

#include "journal/journal.h"
#include "app/mbemain.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"
#include "benchmarks/support/peer.h"
#include "support/steadyclock.h"

#include <QAbstractButton>
#include <QFile>

#include <ctime>
#include <memory>

namespace {

constexpr int batches = 50;
constexpr int linesInBatch = 1000;
constexpr int measuredMs = 10000;
constexpr int fewestLines = 100;

struct Cost
{
    double wallUs = 0.0; // the median of the batches
    double cpuUs = 0.0; // over all of them
};

Cost costOfALine()
{
    Journal journal(QStringLiteral("lines.log"));
    std::vector<double> wallUs;
    const std::clock_t cpuStart = std::clock();
    for (int batch = 0; batch < batches; ++batch) {
        const qint64 start = steadyNowNs();
        for (int line = 0; line < linesInBatch; ++line) {
            journal.write("sent", {{"bytes", QStringLiteral("\x04\x30\x33M1\x05\n")}});
        }
        wallUs.push_back(static_cast<double>(steadyNowNs() - start) / (1e3 * linesInBatch));
    }
    const double cpuSec = static_cast<double>(std::clock() - cpuStart) / CLOCKS_PER_SEC;
    return {median(wallUs), 1e6 * cpuSec / (batches * linesInBatch)};
}

int linesInJournals()
{
    int lines = 0;
    for (const char* name : {"NelvoJournal.log", "NelvoWire.log"}) {
        QFile file{QLatin1String(name)};
        lines += file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
    }
    return lines;
}

// Shutters change every 50 ms, the shortest step that its test asks for.
void play(MBEMain& window)
{
    const QString name = QStringLiteral("busy.dat");
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly)) {
        fail("no program");
    }
    file.write("0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t1\t0\t1\t0\t1\t0\t1\t0.05\tA\t100000\n"
               "1\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t1\t0\t1\t0\t1\t0\t0.05\tA\t100000\n");
    file.close();
    QMetaObject::invokeMethod(&window, "APLoadProg", Q_ARG(QString, name));
    window.findChild<QAbstractButton*>(QStringLiteral("ProgRun"))->click();
}

// Lines a second, in both journals, while nine channels are polled as quickly as it goes and every byte is
// written down.
double linesASecond(bool plays)
{
    qputenv("NELVO_JOURNAL", "--wire");
    Peer peer(0);
    auto window = std::make_unique<MBEMain>();
    window->show();
    if (plays) {
        play(*window);
    }
    letRun(1000);
    const int before = linesInJournals();
    const qint64 start = steadyNowNs();
    letRun(measuredMs);
    const double seconds = static_cast<double>(steadyNowNs() - start) / 1e9;
    const int lines = linesInJournals() - before;
    window.reset();
    peer.finish();
    if (lines < fewestLines) {
        fail("the station did not poll");
    }
    return lines / seconds;
}

int measure()
{
    const Figures figures("station-journal");
    const Cost line = costOfALine();
    figures.atMost("a line of the journal, appended and flushed", 20.0, line.wallUs, "us");
    for (const bool plays : {false, true}) {
        const double lines = linesASecond(plays);
        figures.show(plays ? "lines, with a program of 50 ms steps, too"
                           : "lines, every byte written down, replies at once",
            lines, "a second");
        figures.atMost("CPU share of one core of these lines", 1.0, 100.0 * lines * line.cpuUs / 1e6, "%");
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (isPeer(argc, argv)) {
        return peerMain(argc, argv);
    }
    return runBenchmark(argc, argv, &measure);
}
