#include "figures.h"

#include <algorithm>
#include <cstdio>

void Figures::ReportRuns(const std::vector<Run>& runs)
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

double Figures::ms(const std::string& name) const
{
    const auto found = timesMs.find(name);
    return found == timesMs.end() ? 0.0 : found->second;
}

double Figures::slowest(const std::string& prefix) const
{
    double found = 0.0;
    for (const auto& entry : timesMs) {
        if (entry.first.compare(0, prefix.size(), prefix) == 0) {
            found = std::max(found, entry.second);
        }
    }
    return found;
}

double Figures::counter(const std::string& name, const std::string& what) const
{
    const auto found = counters.find(name);
    if (found == counters.end() || found->second.count(what) == 0) {
        return 0.0;
    }
    return found->second.at(what);
}

void Figures::row(const char* what, double value, double target)
{
    std::printf(
        "  %-58s %8.3f   target %7.3f  %s\n", what, value, target, value <= target ? "met" : "MISSED");
}

void Figures::ratio(const char* what, const std::string& ours, const std::string& other, double target) const
{
    if (has(ours) && has(other)) {
        row(what, ms(ours) / ms(other), target);
    }
}

void Figures::most(
    const char* what, const std::string& name, const std::string& counterName, double target) const
{
    if (has(name)) {
        row(what, counter(name, counterName), target);
    }
}

void Figures::printTargets(double memoryMb) const
{
    std::printf("\nAgainst the targets (medians of this run):\n");
    ratio("waveform: ours / QCustomPlot", "waveform/ours", "waveform/QCustomPlot", 0.25);
    ratio("noise: ours / QCustomPlot", "noise/ours", "noise/QCustomPlot", 0.25);
    ratio("waveform: ours / every segment", "waveform/ours", "waveform/every_segment", 0.03);
    ratio("noise: ours / every segment (no target of its own)", "noise/ours", "noise/every_segment", 1.0);
    ratio("waveform: ours / Qwt (no target of its own)", "waveform/ours", "waveform/Qwt", 1.0);
    ratio("waveform: ours / ours with 2,000 points a channel", "waveform/ours", "waveform/ours_2000", 1.5);
    if (slowest("drag/") > 0.0) {
        row("slowest kind of drag step over full histories, ms", slowest("drag/"), frameMs);
    }
    ratio("a press / one repaint", "mouse/press", "mouse/repaint", 1.3);
    ratio("a wheel step / one repaint", "mouse/wheel", "mouse/repaint", 1.3);
    most("append at the limit, ns", "append/amortised", "ns_per_append", 150.0);
    most("slowest single append, ms", "append/slowest", "slowest_ms", 1.0);
    row("memory of nine full channels, MB", memoryMb, 40.0);
}
