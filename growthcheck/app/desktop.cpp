#include "growthcheck/app/desktop.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace GrowthCheck {

bool isStartedByDesktop()
{
#ifdef Q_OS_WIN
    // A console that belongs to this process alone was opened for it.
    DWORD processes[2];
    return GetConsoleProcessList(processes, 2) == 1;
#else
    return false;
#endif
}

bool showFile(const QString& fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
#if defined(Q_OS_WIN)
    return QProcess::startDetached(QStringLiteral("explorer.exe"), {QDir::toNativeSeparators(path)});
#elif defined(Q_OS_MACOS)
    return QProcess::startDetached(QStringLiteral("open"), {path});
#else
    return QProcess::startDetached(QStringLiteral("xdg-open"), {path});
#endif
}

} // namespace GrowthCheck
