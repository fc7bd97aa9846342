#include "benchmarks/support/figures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

Figures::Figures(const char* program)
{
    std::printf("\n| %-56s | %12s | %14s | %-7s |\n", program, "target", "measured", "verdict");
    std::printf("|:%s|%s:|%s:|:%s|\n", std::string(57, '-').c_str(), std::string(13, '-').c_str(),
        std::string(15, '-').c_str(), std::string(8, '-').c_str());
}

void Figures::atMost(const char* figure, double limit, double measured, const char* unit) const
{
    std::printf("| %-56s | <= %9.2f | %9.3f %-4s | %-7s |\n", figure, limit, measured, unit,
        measured <= limit ? "ok" : "MISSED");
    std::fflush(stdout);
}

void Figures::show(const char* figure, double measured, const char* unit) const
{
    std::printf("| %-56s | %12s | %9.3f %-4s | %-7s |\n", figure, "", measured, unit, "");
    std::fflush(stdout);
}

void fail(const char* what)
{
    std::printf("broken: %s\n", what);
    std::fflush(stdout);
    std::exit(1);
}

double median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double worst(const std::vector<double>& values)
{
    return values.empty() ? 0.0 : *std::max_element(values.begin(), values.end());
}
