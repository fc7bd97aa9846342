// What the station costs while it only polls: nine channels, replies after 5 ms, the chart's tab shown.

#include "app/mbemain.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"
#include "benchmarks/support/peer.h"
#include "support/steadyclock.h"

#include <QTabWidget>

#include <ctime>
#include <memory>

namespace {

constexpr int replyMs = 5;
constexpr int warmUpMs = 2000;
constexpr int measuredMs = 15000;
// A channel takes 40 ms; a third of the requests missing would be another load than the one meant.
constexpr size_t fewestRequests = measuredMs / 40 * 2 / 3;

// The share of one core that this process used (std::clock is its CPU time where this is measured; the C
// library of Windows counts wall time instead).
double cpuSharePercent()
{
    const qint64 wallStart = steadyNowNs();
    const std::clock_t cpuStart = std::clock();
    letRun(measuredMs);
    const double cpuSec = static_cast<double>(std::clock() - cpuStart) / CLOCKS_PER_SEC;
    return 100.0 * cpuSec / (static_cast<double>(steadyNowNs() - wallStart) / 1e9);
}

void showChart(MBEMain& window)
{
    const auto* chart = window.findChild<QWidget*>(QStringLiteral("Tshow"));
    auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->widget(i)->isAncestorOf(chart)) {
            tabs->setCurrentIndex(i);
        }
    }
    if (!chart->isVisible()) {
        fail("the chart does not show");
    }
}

int measure()
{
    const Figures figures("station-idle");
    Peer peer(replyMs);
    auto window = std::make_unique<MBEMain>();
    window->show();
    showChart(*window);
    letRun(warmUpMs);
    const double percent = cpuSharePercent();
    window.reset();
    if (only(WireEvent::Request, peer.finish()).size() < fewestRequests) {
        fail("the station did not poll");
    }
    figures.atMost("CPU share of one core, polling, chart shown", 5.0, percent, "%");
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
