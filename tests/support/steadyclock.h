#pragma once

#include <QtGlobal>

#include <chrono>

/// Now, in nanoseconds of the steady clock. It counts from the start of the machine, so times that two
/// processes read from it can be compared.
inline qint64 steadyNowNs()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
}
