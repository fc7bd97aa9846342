#pragma once

#include <vector>

/// The table that a benchmark prints: a line for each figure with its target, what was measured and the
/// verdict, "ok" or "MISSED". A missed target is for a reader to judge; it fails no run. The lines are those
/// of a Markdown table, so that benchmarks/results can keep them.
class Figures
{
public:
    /// Prints the heading.
    explicit Figures(const char* program);

    /// A figure in `unit` that should be at most `limit`.
    void atMost(const char* figure, double limit, double measured, const char* unit) const;

    /// A figure without a target, for the reader.
    void show(const char* figure, double measured, const char* unit) const;
};

/// Says on standard output what is broken and ends the program with exit status 1.
[[noreturn]] void fail(const char* what);

/// The middle one of `values`, the upper of the two middle ones of an even number. 0 for none.
double median(std::vector<double> values);

/// The largest of `values`, 0 for none.
double worst(const std::vector<double>& values);
