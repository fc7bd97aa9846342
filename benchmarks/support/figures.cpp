#include "support/figures.h"

#include <algorithm>
#include <cstdio>

Figures::Figures(const char* program)
{
    std::printf("%s\n  %-52s %12s %14s   %s\n", program, "figure", "target", "measured", "verdict");
}

void Figures::atMost(const char* figure, double limit, double measured, const char* unit) const
{
    std::printf("  %-52s <= %9.2f %9.3f %-4s   %s\n", figure, limit, measured, unit,
        measured <= limit ? "ok" : "MISSED");
    std::fflush(stdout);
}

void Figures::show(const char* figure, double measured, const char* unit) const
{
    std::printf("  %-52s %12s %9.3f %-4s\n", figure, "", measured, unit);
    std::fflush(stdout);
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
