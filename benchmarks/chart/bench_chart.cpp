// The chart's figures, side by side in one run, and how they stand against the targets. The scale of a
// display is fixed for a process, so for scaled displays the program runs itself once more for each scale;
// what has as many device pixels there is ours_1250x700, ours_1500x840 and ours_2000x1120 of the unscaled
// run.

#include "benchmarks/chart/peers.h"
#include "benchmarks/chart/runtimes.h"
#include "benchmarks/chart/scaledrun.h"
#include "benchmarks/chart/subjects.h"

#include "chart/support/chartdata.h"
#include "chart/support/hand.h"
#include "chart/support/picturepair.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using Make = std::function<std::unique_ptr<Subject>(const Scene&)>;

void addRepaint(const std::string& name, const QString& kind, int count, const Make& make, const QSize& size)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        Scene scene = makeScene(kind, count);
        scene.size = size;
        const std::unique_ptr<Subject> subject = make(scene);
        subject->repaint();
        for (auto _ : state) {
            subject->repaint();
        }
    })->Unit(benchmark::kMillisecond);
}

void addRepaints()
{
    const QSize size = Scene().size;
    for (const QString& kind : {QStringLiteral("waveform"), QStringLiteral("noise")}) {
        const std::string prefix = kind.toStdString();
        addRepaint(prefix + "/ours", kind, fullHistory, makeOurs, size);
        addRepaint(prefix + "/every_segment", kind, fullHistory, makeEverySegment, size);
        if (hasQCustomPlot()) {
            addRepaint(prefix + "/QCustomPlot", kind, fullHistory, makeQCustomPlot, size);
        }
        if (hasQwt()) {
            addRepaint(prefix + "/Qwt", kind, fullHistory, makeQwt, size);
        }
        addRepaint(prefix + "/ours_2000", kind, 2000, makeOurs, size);
        // As many device pixels as 1000 x 560 has at the scales 1.25, 1.5 and 2.
        addRepaint(prefix + "/ours_1250x700", kind, fullHistory, makeOurs, QSize(1250, 700));
        addRepaint(prefix + "/ours_1500x840", kind, fullHistory, makeOurs, QSize(1500, 840));
        addRepaint(prefix + "/ours_2000x1120", kind, fullHistory, makeOurs, QSize(2000, 1120));
    }
}

// A real window with full histories, all of them in sight.
class FullWindow
{
public:
    explicit FullWindow(const QString& kind = QStringLiteral("waveform"))
        : pair(fullHistory)
    {
        const Scene scene = makeScene(kind, fullHistory);
        pair.resize(scene.size);
        for (int channel = 0; channel < channelCount; ++channel) {
            for (const QPointF& point : scene.series.at(channel)) {
                pair.chart.addPoint(channel, point.x(), point.y());
            }
        }
        Hand::notches(pair.chart, -62);
        pair.chart.show();
        settle();
    }

    // Turns the wheel with the right button held, around the middle of the selected line.
    void magnify(double ySpan)
    {
        const double middle = 500.0 - 30.0 * pair.chart.selectedChannel();
        const QPointF at(500.0, pair.chart.coordinates().pixelY(middle));
        Hand::press(pair.chart, at, Qt::RightButton);
        while (pair.chart.chartView().ySpan > ySpan) {
            Hand::wheel(pair.chart, 120, at);
        }
        Hand::release(pair.chart, at, Qt::RightButton);
        settle();
    }

    static void settle() { QCoreApplication::processEvents(); }

    PicturePair pair;
};

// Steps of a drag to the side.
void addDrag(const QString& kind, int ySpan, int selected)
{
    const QString name = QStringLiteral("drag/%1/y%2/selected%3").arg(kind).arg(ySpan).arg(selected);
    benchmark::RegisterBenchmark(qPrintable(name), [=](benchmark::State& state) {
        FullWindow window(kind);
        TShowView& chart = window.pair.chart;
        chart.select(selected);
        window.magnify(ySpan);
        Hand::press(chart, QPointF(500, 300), Qt::LeftButton);
        int turn = 0;
        for (auto _ : state) {
            Hand::move(chart, QPointF(500 + turn++ % 100, 300), Qt::LeftButton);
            FullWindow::settle();
        }
    })->Unit(benchmark::kMillisecond);
}

void addDrags()
{
    for (const QString& kind : {QStringLiteral("waveform"), QStringLiteral("noise")}) {
        for (const int ySpan : {1000, 100, 40}) {
            for (const int selected : {0, 8}) {
                addDrag(kind, ySpan, selected);
            }
        }
    }
}

void addMouse()
{
    const auto add = [](const char* name, const std::function<void(TShowView&, int)>& act) {
        benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
            FullWindow window;
            int turn = 0;
            for (auto _ : state) {
                act(window.pair.chart, turn++);
                FullWindow::settle();
            }
        })->Unit(benchmark::kMillisecond);
    };
    add("mouse/repaint", [](TShowView& chart, int) { chart.update(); });
    add("mouse/press", [](TShowView& chart, int) { Hand::press(chart, QPointF(500, 300), Qt::LeftButton); });
    add("mouse/wheel", [](TShowView& chart, int turn) { Hand::wheel(chart, turn % 2 == 0 ? 120 : -120); });
}

PointBuffer fullBuffer(int channel)
{
    PointBuffer buffer;
    for (int i = 0; i < fullHistory; ++i) {
        buffer.append({1.0 * i, 500.0 + channel + i % 77});
    }
    return buffer;
}

void addAppend()
{
    benchmark::RegisterBenchmark("append/amortised", [](benchmark::State& state) {
        constexpr int batch = 100000;
        PointBuffer buffer = fullBuffer(0);
        double sec = fullHistory;
        QElapsedTimer timer;
        qint64 spentNs = 0;
        qint64 appended = 0;
        for (auto _ : state) {
            timer.start();
            for (int i = 0; i < batch; ++i) {
                sec += 1.0;
                buffer.append({sec, sec});
            }
            spentNs += timer.nsecsElapsed();
            appended += batch;
        }
        state.counters["ns_per_append"] = static_cast<double>(spentNs) / static_cast<double>(appended);
    })->Unit(benchmark::kMillisecond);

    // From empty to well past the limit. The same append of five goes: an interruption by the system is not
    // the buffer's.
    benchmark::RegisterBenchmark("append/slowest",
        [](benchmark::State& state) {
            constexpr int goes = 5;
            constexpr int count = 2 * fullHistory;
            std::vector<qint64> quickest(count, std::numeric_limits<qint64>::max());
            for (auto _ : state) {
                for (int go = 0; go < goes; ++go) {
                    PointBuffer buffer;
                    QElapsedTimer timer;
                    for (int i = 0; i < count; ++i) {
                        timer.start();
                        buffer.append({1.0 * i, 500.0});
                        qint64& best = quickest[static_cast<std::size_t>(i)];
                        best = std::min(best, timer.nsecsElapsed());
                    }
                }
            }
            state.counters["slowest_ms"]
                = 1e-6 * static_cast<double>(*std::max_element(quickest.begin(), quickest.end()));
        })
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

// The process's resident memory in MB, 0 where the system does not tell.
double residentMb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).simplified().split(' ').first().toDouble() / 1024.0;
        }
    }
    return 0.0;
}

// What nine full histories take, in MB. To be called first of all: memory that others gave back would hide
// what is taken.
double memoryOfNineChannels()
{
    TShowView chart;
    chart.resize(1000, 560);
    chart.grab();
    const double before = residentMb();
    for (int channel = 0; channel < channelCount; ++channel) {
        for (int i = 0; i < fullHistory + 5000; ++i) {
            chart.addPoint(channel, i, 500.0 + i % 77);
        }
    }
    return residentMb() - before;
}

// Turns of all benchmarks in a mixed order, so that a noisy minute of the machine does not fall on one of
// them alone. What is given on the command line comes later and wins.
std::vector<std::string> argumentsWithTurns(int argc, char* argv[])
{
    std::vector<std::string> arguments{argv[0], "--benchmark_repetitions=5", "--benchmark_min_time=0.2",
        "--benchmark_enable_random_interleaving=true", "--benchmark_display_aggregates_only=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

} // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    const double memoryMb = memoryOfNineChannels();
    std::vector<std::string> arguments = argumentsWithTurns(argc, argv);
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(&argument[0]);
    }
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return 1;
    }
    addRepaints();
    addMouse();
    addDrags();
    addAppend();
    RunTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    if (!isScaledRun()) {
        const Figures figures("chart-history");
        printTargets(figures, times, memoryMb);
        printScaledRuns(figures, times);
    }
    return 0;
}
