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
    // A console that belongs to this process alone was opened for it. Where nobody sees it, or the output
    // goes elsewhere, a script did so, which no page and no waiting for a reader would help.
    DWORD processes[2];
    DWORD mode = 0;
    return GetConsoleProcessList(processes, 2) == 1 && GetConsoleWindow() != nullptr
        && GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0;
#else
    return false;
#endif
}

bool showFile(const QString& fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
#if defined(Q_OS_WIN)
    // Neither a program of that name in the folder nor a comma in the file's name may mislead it.
    QProcess explorer;
    explorer.setProgram(qEnvironmentVariable("SystemRoot") + QStringLiteral("\\explorer.exe"));
    explorer.setNativeArguments(QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(path)));
    return explorer.startDetached();
#elif defined(Q_OS_MACOS)
    return QProcess::startDetached(QStringLiteral("open"), {path});
#else
    return QProcess::startDetached(QStringLiteral("xdg-open"), {path});
#endif
}

} // namespace GrowthCheck
