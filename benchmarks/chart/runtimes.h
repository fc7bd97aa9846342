#pragma once

#include "benchmarks/support/figures.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// How long a picture may take at 60 a second.
constexpr double frameMs = 1000.0 / 60.0;

/// Prints as usual and remembers each benchmark's time, so that ratios of one run can be told.
class RunTimes : public benchmark::ConsoleReporter
{
public:
    RunTimes()
        : ConsoleReporter(OO_Tabular)
    {
    }

    void ReportRuns(const std::vector<Run>& runs) override;

    bool has(const std::string& name) const { return timesMs.count(name) != 0; }
    /// The median processor time of one iteration, 0 when the benchmark did not run.
    double ms(const std::string& name) const;
    /// The largest of the benchmarks whose names begin with `prefix`, 0 when none ran.
    double slowest(const std::string& prefix) const;
    double counter(const std::string& name, const std::string& what) const;

private:
    std::map<std::string, double> timesMs;
    std::map<std::string, std::map<std::string, double>> counters;
};

/// The ratios of `times` and what was counted in its runs, against their targets, with the memory that was
/// measured before. What did not run is left out.
void printTargets(const Figures& figures, const RunTimes& times, double memoryMb);
