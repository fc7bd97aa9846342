#pragma once

#include <QElapsedTimer>
#include <QString>

#include <ctime>

/// How much memory this process has in use, in MB (10^6 bytes), as the system counts it; 0 where it does not
/// tell.
double residentMb();

/// How much of it is in use by what was allocated and not freed, in MB; 0 where the C library does not tell.
/// Memory that grows while this does not is lost to gaps in the heap, and not to a leak.
double heapMb();

/// Says how long something took, by a clock and of the processor, since it was made.
class Stopwatch
{
public:
    Stopwatch() { timer.start(); }

    double wallMs() const { return static_cast<double>(timer.nsecsElapsed()) * 1e-6; }
    /// Of all threads of this process.
    double processorMs() const
    {
        return 1000.0 * static_cast<double>(std::clock() - processorStart) / CLOCKS_PER_SEC;
    }

private:
    QElapsedTimer timer;
    std::clock_t processorStart = std::clock();
};

/// What many doings of one kind took. On a machine that others share a single one may take any time, since
/// processors are charged for what their host takes: many slow ones are the program's own.
class Costs
{
public:
    /// A doing is slow from `slowMs` of the processor on; one in `oneIn` may be.
    Costs(double slowFromMs, int oneSlowIn)
        : slowMs(slowFromMs)
        , oneIn(oneSlowIn)
    {
    }

    /// A doing has ended that began with `time`; true when none took more of the processor.
    bool note(const Stopwatch& time);

    /// Of the processor, and by a clock, in ms.
    double worstMs() const { return worst; }
    double worstWallMs() const { return worstWall; }
    int count() const { return doings; }
    /// What is wrong with them, said of `what`; empty while too few were slow to tell.
    QString complaint(const QString& what) const;

private:
    double slowMs;
    int oneIn;
    double worst = 0.0;
    double worstWall = 0.0;
    int doings = 0;
    int slow = 0;
};
