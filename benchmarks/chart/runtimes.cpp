#include "benchmarks/chart/runtimes.h"

#include <algorithm>

void RunTimes::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        const bool isMedian = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
        const bool isOnly = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
        if (!isMedian && !isOnly) {
            continue;
        }
        const std::string name = run.run_name.function_name;
        timesMs[name] = run.GetAdjustedCPUTime(); // all of them count in ms
        for (const auto& counter : run.counters) {
            counters[name][counter.first] = counter.second.value;
        }
    }
}

double RunTimes::ms(const std::string& name) const
{
    const auto found = timesMs.find(name);
    return found == timesMs.end() ? 0.0 : found->second;
}

double RunTimes::slowest(const std::string& prefix) const
{
    double found = 0.0;
    for (const auto& entry : timesMs) {
        if (entry.first.compare(0, prefix.size(), prefix) == 0) {
            found = std::max(found, entry.second);
        }
    }
    return found;
}

double RunTimes::counter(const std::string& name, const std::string& what) const
{
    const auto found = counters.find(name);
    if (found == counters.end() || found->second.count(what) == 0) {
        return 0.0;
    }
    return found->second.at(what);
}

void printTargets(const Figures& figures, const RunTimes& times, double memoryMb)
{
    const auto ratio = [&](const char* what, const char* ours, const char* other, double target) {
        if (times.has(ours) && times.has(other)) {
            figures.atMost(what, target, times.ms(ours) / times.ms(other), "");
        }
    };
    const auto most
        = [&](const char* what, const char* name, const char* counter, double target, const char* unit) {
              if (times.has(name)) {
                  figures.atMost(what, target, times.counter(name, counter), unit);
              }
          };
    ratio("waveform: ours / QCustomPlot", "waveform/ours", "waveform/QCustomPlot", 0.25);
    ratio("noise: ours / QCustomPlot", "noise/ours", "noise/QCustomPlot", 0.25);
    ratio("waveform: ours / every segment", "waveform/ours", "waveform/every_segment", 0.03);
    ratio("noise: ours / every segment (no target of its own)", "noise/ours", "noise/every_segment", 1.0);
    ratio("waveform: ours / Qwt (no target of its own)", "waveform/ours", "waveform/Qwt", 1.0);
    ratio("waveform: ours / ours with 2,000 points a channel", "waveform/ours", "waveform/ours_2000", 2.0);
    if (times.slowest("drag/") > 0.0) {
        figures.atMost(
            "slowest kind of drag step over full histories", frameMs, times.slowest("drag/"), "ms");
    }
    ratio("a press / one repaint", "mouse/press", "mouse/repaint", 1.3);
    ratio("a wheel step / one repaint", "mouse/wheel", "mouse/repaint", 1.3);
    most("append at the limit", "append/amortised", "ns_per_append", 150.0, "ns");
    most("slowest single append", "append/slowest", "slowest_ms", 1.0, "ms");
    figures.atMost("memory of nine full channels", 40.0, memoryMb, "MB");
}
