#include "base/awakeclock.h"

#ifdef Q_OS_WIN

// windows.h first: the header below does not come without it.
#include <windows.h>

#include <realtimeapiset.h>

// The usual counters of Windows go on while the machine sleeps.
qint64 awakeMs()
{
    ULONGLONG ticks = 0; // of 100 ns
    QueryUnbiasedInterruptTime(&ticks);
    return static_cast<qint64>(ticks / 10000);
}

#else

#include <chrono>

// The steady clock of Linux and macOS leaves sleep out. Where one does not, a nap counts as time that has passed.
qint64 awakeMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

#endif
