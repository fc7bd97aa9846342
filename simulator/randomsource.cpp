#include "simulator/randomsource.h"

#include <cmath>

namespace Chamber {

namespace {

constexpr quint64 streamStride = 0x9E3779B97F4A7C15U; // far apart seeds for neighbouring streams

} // namespace

RandomSource::RandomSource(quint64 seed, quint64 stream)
    : engine(seed + (stream + 1) * streamStride)
{
}

double RandomSource::fraction()
{
    // The standard's distributions differ between libraries; its engines do not.
    return std::ldexp(static_cast<double>(engine() >> 11U), -53);
}

int RandomSource::below(int count)
{
    return static_cast<int>(fraction() * count);
}

double RandomSource::deviation()
{
    // The sum of twelve has a variance of 1.
    double sum = -6.0;
    for (int i = 0; i < 12; ++i) {
        sum += fraction();
    }
    return sum;
}

} // namespace Chamber
