// The player: what a tick and a step's start cost, and how well the steps of a long run keep their time.
//
// Targets: a tick 100 us in the median; a start that opens shutters and starts nine ramps 3 ms; in a run of
// 500 steps every step within 20 ms of its time after the one before, and no more than one tick (10 ms) a
// step added up.

#include "growthtable.h"

#include "support/scriptedadapter.h"
#include "support/testmain.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void load(ShownStation& station, const QVector<ProgramStep>& steps)
{
    const QString fname = QStringLiteral("program.dat");
    saveProgram(fname, steps);
    QMetaObject::invokeMethod(&station.window(), "APLoadProg", Q_ARG(QString, fname));
    settle();
}

ProgramStep step(double timeSec, const QString& group, int times, bool open)
{
    ProgramStep result;
    result.timeSec = timeSec;
    result.group = group;
    result.times = times;
    result.shutters.fill(open);
    return result;
}

// Times the ticks that come `afterMs` apart, with the window repainted between them.
void timeTicks(benchmark::State& state, ShownStation& station, qint64 afterMs)
{
    std::vector<double> microseconds;
    for (auto _ : state) {
        DrivenClock::advance(afterMs);
        QElapsedTimer timer;
        timer.start();
        callSlot(&station.window(), "APOneTick");
        const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
        state.SetIterationTime(seconds);
        microseconds.push_back(1e6 * seconds);
        settle();
    }
    state.counters["median_us"] = median(microseconds);
    state.counters["worst_us"] = *std::max_element(microseconds.begin(), microseconds.end());
}

void tickWhileRunning(benchmark::State& state)
{
    const DrivenClock clock;
    ShownStation station;
    load(station, {step(1e9, QStringLiteral("A"), 1, true)});
    callSlot(&station.window(), "APStart");
    callSlot(&station.window(), "APOneTick");
    timeTicks(state, station, 10);
}

void stepStart(benchmark::State& state)
{
    const DrivenClock clock;
    ShownStation station;
    QVector<ProgramStep> steps{step(60.0, QStringLiteral("A"), 2147483647, true),
        step(60.0, QStringLiteral("A"), 1, false), step(0.0, QStringLiteral("B"), 1, false)};
    steps[0].setPoints.fill(QStringLiteral("40"));
    steps[1].setPoints.fill(QStringLiteral("20"));
    load(station, steps);
    callSlot(&station.window(), "APStart");
    callSlot(&station.window(), "APOneTick");
    timeTicks(state, station, 60001);
}

// The far end of the link: answers what the controllers are asked and notes when a shutter command comes.
class AnsweringAdapter : public QObject
{
public:
    AnsweringAdapter()
    {
        if (!server.listen(QHostAddress(ownLoopbackAddress()), 1234)) {
            qFatal("cannot listen");
        }
        connect(&server, &QTcpServer::newConnection, this, [this] {
            client = server.nextPendingConnection();
            client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            connect(client, &QTcpSocket::readyRead, this, [this] { take(client->readAll()); });
        });
        watch.start();
    }

    std::vector<double> commandMs; // since the start, one a shutter command

private:
    void take(const QByteArray& bytes)
    {
        for (int n = bytes.count('\x1B'); n > 0; --n) {
            commandMs.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
        }
        for (int n = bytes.count('\x05') + bytes.count('\x02'); n > 0; --n) {
            client->write("01M0025.00x\n");
        }
    }

    QTcpServer server;
    QTcpSocket* client = nullptr;
    QElapsedTimer watch;
};

void stepTiming(benchmark::State& state)
{
    constexpr int stepCount = 500;
    constexpr double stepMs = 50.0;
    AnsweringAdapter adapter;
    qputenv("NELVO_ADAPTER", ownLoopbackAddress().toLatin1());
    ShownStation station;
    station.release();
    load(station,
        {step(stepMs / 1000.0, QStringLiteral("A"), stepCount / 2, true),
            step(stepMs / 1000.0, QStringLiteral("A"), 1, false), step(0.0, QStringLiteral("B"), 1, false)});

    for (auto _ : state) {
        adapter.commandMs.clear();
        callSlot(&station.window(), "APStart");
        QElapsedTimer patience;
        patience.start();
        while (adapter.commandMs.size() < stepCount && patience.elapsed() < 60000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCoreApplication::processEvents();
    }
    const std::vector<double>& starts = adapter.commandMs;
    double worst = 0.0;
    std::vector<double> errors;
    for (size_t i = 1; i < starts.size(); ++i) {
        errors.push_back(starts[i] - starts[i - 1] - stepMs);
        worst = std::max(worst, std::abs(errors.back()));
    }
    state.counters["steps"] = static_cast<double>(starts.size());
    state.counters["median_error_ms"] = median(errors);
    state.counters["worst_error_ms"] = worst;
    state.counters["off_by_over_20ms"] = static_cast<double>(
        std::count_if(errors.begin(), errors.end(), [](double ms) { return std::abs(ms) > 20.0; }));
    state.counters["drift_ms_a_step"]
        = (starts.back() - starts.front()) / static_cast<double>(starts.size() - 1) - stepMs;
}

} // namespace

BENCHMARK(tickWhileRunning)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(stepStart)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(500);
BENCHMARK(stepTiming)->Unit(benchmark::kMillisecond)->Iterations(1);

int main(int argc, char* argv[])
{
    qputenv("NELVO_ADAPTER", "127.0.0.1");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return runIsolated(argc, argv, [&] {
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    });
}
