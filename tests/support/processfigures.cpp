#include "support/processfigures.h"

#include <QFile>
#include <QList>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
#if __GLIBC_PREREQ(2, 33)
#define NELVO_HEAP_IS_TOLD
#endif
#endif

double residentMb()
{
#ifdef Q_OS_UNIX
    QFile file(QStringLiteral("/proc/self/statm"));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> pages = file.readAll().split(' ');
        return pages.value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
    }
#endif
    return 0.0;
}

double heapMb()
{
#ifdef NELVO_HEAP_IS_TOLD
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / 1e6;
#else
    return 0.0;
#endif
}

bool Costs::note(const Stopwatch& time)
{
    const double ms = time.processorMs();
    const bool isWorst = doings == 0 || ms > worst;
    ++doings;
    slow += ms > slowMs ? 1 : 0;
    worst = std::max(worst, ms);
    worstWall = std::max(worstWall, time.wallMs());
    return isWorst;
}

QString Costs::complaint(const QString& what) const
{
    constexpr int always = 3; // so few are no sign, however short the run
    if (slow <= always + doings / oneIn) {
        return {};
    }
    return QStringLiteral("%1 of %2 %3 took more than %4 ms of the processor")
        .arg(slow)
        .arg(doings)
        .arg(what)
        .arg(slowMs);
}
