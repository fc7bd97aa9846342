#pragma once

#include <QtGlobal>

#include <random>

namespace Chamber {

/// Random numbers that a seed determines, the same on every platform. Several streams of one seed do not
/// disturb each other.
class RandomSource
{
public:
    RandomSource(quint64 seed, quint64 stream);

    /// A number in [0, 1).
    double fraction();

    /// A whole number in [0, count); `count` is at least 1.
    int below(int count);

    /// A number of mean 0 and standard deviation 1, close to normally distributed, never beyond -6 and 6.
    double deviation();

private:
    std::mt19937_64 engine;
};

} // namespace Chamber
