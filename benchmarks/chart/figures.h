#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// How long a picture may take at 60 a second.
constexpr double frameMs = 1000.0 / 60.0;

/// Prints as usual and remembers each benchmark's time, so that ratios of one run can be told.
class Figures : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    bool has(const std::string& name) const { return timesMs.count(name) != 0; }
    /// The median processor time of one iteration, 0 when the benchmark did not run.
    double ms(const std::string& name) const;
    /// The largest of the benchmarks whose names begin with `prefix`, 0 when none ran.
    double slowest(const std::string& prefix) const;
    double counter(const std::string& name, const std::string& what) const;

    /// The table of ratios against their targets, with the memory that was measured before.
    void printTargets(double memoryMb) const;

    /// A line of the table.
    static void row(const char* what, double value, double target);

private:
    void ratio(const char* what, const std::string& ours, const std::string& other, double target) const;
    void most(const char* what, const std::string& name, const std::string& counterName, double target) const;

    std::map<std::string, double> timesMs;
    std::map<std::string, std::map<std::string, double>> counters;
};
