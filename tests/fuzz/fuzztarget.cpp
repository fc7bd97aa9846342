#include "fuzz/fuzztarget.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

QString placeInMemory()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

void stayQuiet(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        std::abort();
    }
}

} // namespace

void prepareFuzzing()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(&stayQuiet);
    QStandardPaths::setTestModeEnabled(true);
    static const QTemporaryDir folder(placeInMemory() + QStringLiteral("/nelvo-fuzz-XXXXXX"));
    qputenv("HOME", folder.path().toLocal8Bit());
    static const QApplication application(argc, argv);
    if (!folder.isValid() || !QDir::setCurrent(folder.path())) {
        qFatal("no temporary working directory");
    }
}
