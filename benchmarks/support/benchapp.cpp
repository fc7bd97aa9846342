#include "support/benchapp.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

void choosePlatform()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

int runBenchmark(int argc, char* argv[], const std::function<int()>& run)
{
    choosePlatform();
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);

    const QString before = QDir::currentPath();
    QTemporaryDir directory;
    if (!directory.isValid() || !QDir::setCurrent(directory.path())) {
        fail("no temporary working directory");
    }
    if (std::freopen("station.log", "w", stderr) == nullptr) {
        fail("the debug lines cannot be put aside");
    }
    const int result = run();
    QDir::setCurrent(before);
    return result;
}

void letRun(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void fail(const char* what)
{
    std::printf("broken: %s\n", what);
    std::fflush(stdout);
    std::exit(1);
}
