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

qint64 sleptMs()
{
    return static_cast<qint64>(GetTickCount64()) - awakeMs();
}

#else

#include <chrono>
#include <ctime>

// The steady clock of Linux leaves sleep out. Where one does not, a nap counts as time that has passed.
qint64 awakeMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

qint64 sleptMs()
{
#ifdef CLOCK_BOOTTIME
    timespec withSleep{};
    if (clock_gettime(CLOCK_BOOTTIME, &withSleep) == 0) {
        const qint64 withSleepMs = static_cast<qint64>(withSleep.tv_sec) * 1000 + withSleep.tv_nsec / 1000000;
        return withSleepMs - awakeMs();
    }
#endif
    return 0;
}

#endif
