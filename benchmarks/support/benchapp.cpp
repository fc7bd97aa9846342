#include "benchmarks/support/benchapp.h"

#include "benchmarks/support/figures.h"
#include "support/testmain.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <cstdio>

int runBenchmark(int argc, char* argv[], const std::function<int()>& run)
{
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    return runIsolated(argc, argv, [&run] {
        if (std::freopen("station.log", "w", stderr) == nullptr) {
            fail("the debug lines cannot be put aside");
        }
        return run();
    });
}

void settle()
{
    // Some events are posted by others' handling, a layout's by the polishing before it.
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void letRun(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}
