#include "support/testmain.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

int runIsolated(int argc, char* argv[], const std::function<int()>& run)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // A window that a test builds without thinking of it must not reach the address this build is made for.
    qputenv("NELVO_ADAPTER", "127.0.0.3");
    QStandardPaths::setTestModeEnabled(true);
    // The desktop, where the station makes its folder of programs, is not among the places that test mode
    // moves.
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);

    const QString before = QDir::currentPath();
    QTemporaryDir directory;
    if (!directory.isValid() || !QDir::setCurrent(directory.path())) {
        qFatal("no temporary working directory");
    }
    const int result = run();
    QDir::setCurrent(before);
    return result;
}
