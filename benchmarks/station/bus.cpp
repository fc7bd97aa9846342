// How fast the bus is served: a polling round of all channels, and shutter commands, on a free bus and on one
// that awaits a reply.

#include "app/mbemain.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"
#include "benchmarks/support/peer.h"
#include "support/panel.h"
#include "support/steadyclock.h"

#include <QtTest>

#include <algorithm>
#include <memory>
#include <random>

namespace {

constexpr double msPerTick = 10.0;
// Request, value shown, ramp step, next channel: with the reply there before the tick after the request, a
// channel takes one tick for each.
constexpr int ticksPerChannel = 4;
constexpr double roundMs = Channels::count * ticksPerChannel * msPerTick;

constexpr int rounds = 25;
constexpr int freeClicks = 300;
constexpr int pendingClicks = 120;
constexpr int pendingReplyMs = 60;
constexpr int lastCommandMs = 500; // for the last command to leave, however slow the machine

std::unique_ptr<MBEMain> shownWindow()
{
    auto window = std::make_unique<MBEMain>();
    window->show();
    letRun(500);
    return window;
}

double ms(qint64 ns)
{
    return static_cast<double>(ns) / 1e6;
}

// Clicks one commanded-state button after the other, as the window system delivers a click, and gives the
// times at which the buttons were let go: that is what clicks them.
std::vector<qint64> clickShutters(MBEMain& window, int clicks, int shortestGapMs, int longestGapMs)
{
    std::mt19937 chance(1);
    std::uniform_int_distribution<int> gapMs(shortestGapMs, longestGapMs);
    std::vector<qint64> releases;
    for (int i = 0; i < clicks; ++i) {
        const auto* button = window.findChild<QToolButton*>(cell("CS", i % Channels::shutterCount));
        const QPoint middle = button->mapTo(&window, button->rect().center());
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, middle);
        letRun(gapMs(chance));
        releases.push_back(steadyNowNs());
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, middle);
        letRun(shortestGapMs);
    }
    letRun(lastCommandMs);
    return releases;
}

void stopPolling(MBEMain& window)
{
    auto* polling = window.findChild<QRadioButton*>(QStringLiteral("TMPCtrlActive"));
    QTest::keyClick(polling, Qt::Key_Space); // it has no partner to be unchecked by
    letRun(100); // a reply may be on its way
}

// For each click the shutter command that carried it: the first one afterwards. Two clicks may have one
// command where a slow machine brought the second before the first had left.
std::vector<WireEvent> commandsFor(const std::vector<qint64>& clicks, const std::vector<WireEvent>& events)
{
    const std::vector<WireEvent> commands = only(WireEvent::Shutters, events);
    std::vector<WireEvent> carriers;
    for (const qint64 click : clicks) {
        const auto carrier = std::find_if(commands.begin(), commands.end(),
            [click](const WireEvent& command) { return command.ns > click; });
        if (carrier == commands.end()) {
            fail("a click gave no shutter command");
        }
        carriers.push_back(*carrier);
    }
    return carriers;
}

void measureRound(const Figures& figures)
{
    Peer peer(0);
    auto window = shownWindow();
    letRun(static_cast<int>(roundMs * (rounds + 2)));
    window.reset();

    std::vector<qint64> starts;
    for (const WireEvent& request : only(WireEvent::Request, peer.finish())) {
        if (request.value == 0) {
            starts.push_back(request.ns);
        }
    }
    // On a slow machine there are fewer than there could be: that is what is measured.
    if (starts.size() < rounds / 2) {
        fail("the station did not poll");
    }
    std::vector<double> ratios;
    for (size_t i = 2; i < starts.size(); ++i) {
        ratios.push_back(ms(starts[i] - starts[i - 1]) / roundMs);
    }
    const double mean = ms(starts.back() - starts[1]) / static_cast<double>(starts.size() - 2) / roundMs;
    figures.atMost("bus round over its 36 ticks of 10 ms, mean", 1.10, mean, "");
    figures.atMost("bus round over its 36 ticks of 10 ms, worst", 1.10, worst(ratios), "");
}

void measureFreeBus(const Figures& figures)
{
    Peer peer(0);
    auto window = shownWindow();
    stopPolling(*window);
    const std::vector<qint64> clicks = clickShutters(*window, freeClicks, 5, 15);
    window.reset();

    const std::vector<WireEvent> commands = commandsFor(clicks, peer.finish());
    std::vector<double> latencies;
    for (size_t i = 0; i < clicks.size(); ++i) {
        latencies.push_back(ms(commands[i].ns - clicks[i]));
    }
    figures.atMost("shutter click to last byte, bus free, median", 2.0, median(latencies), "ms");
    figures.show("shutter click to last byte, bus free, worst", worst(latencies), "ms");
}

// The reply that was awaited at `ns`, or null when none was: requests and replies take turns.
const WireEvent* replyAwaitedAt(qint64 ns, const std::vector<WireEvent>& events)
{
    qint64 requestNs = 0;
    for (const WireEvent& event : events) {
        if (event.kind == WireEvent::Request) {
            requestNs = event.ns;
        } else if (event.kind == WireEvent::Reply && event.ns > ns) {
            return requestNs < ns ? &event : nullptr;
        }
    }
    return nullptr;
}

void measureBusyBus(const Figures& figures)
{
    Peer peer(pendingReplyMs);
    auto window = shownWindow();
    const std::vector<qint64> clicks
        = clickShutters(*window, pendingClicks, pendingReplyMs + 20, pendingReplyMs + 120);
    window.reset();

    const std::vector<WireEvent> events = peer.finish();
    const std::vector<WireEvent> commands = commandsFor(clicks, events);
    std::vector<double> latencies;
    for (size_t i = 0; i < clicks.size(); ++i) {
        if (const WireEvent* reply = replyAwaitedAt(clicks[i], events)) {
            latencies.push_back(ms(commands[i].ns - reply->ns));
        }
    }
    if (latencies.size() < pendingClicks / 4) {
        fail("too few clicks met a pending reply");
    }
    figures.atMost("awaited reply to the shutter command, median", 15.0, median(latencies), "ms");
    figures.atMost("awaited reply to the shutter command, worst", 15.0, worst(latencies), "ms");
    figures.show("  clicks that met a pending reply", static_cast<double>(latencies.size()), "");
}

} // namespace

int main(int argc, char* argv[])
{
    if (isPeer(argc, argv)) {
        return peerMain(argc, argv);
    }
    return runBenchmark(argc, argv, [] {
        const Figures figures("station-bus");
        measureRound(figures);
        measureFreeBus(figures);
        measureBusyBus(figures);
        return 0;
    });
}
