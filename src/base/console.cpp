#include "base/console.h"

#include <cstdio>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

bool writeToStandardOutput(const QString& text)
{
    return std::fputs(text.toLocal8Bit().constData(), stdout) >= 0 && std::fflush(stdout) == 0;
}

} // namespace

#ifdef Q_OS_WIN

bool writeToConsole(const QString& text)
{
    // Whoever redirects the output of a windowed program gives it a handle; a console alone does not.
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    if (output != nullptr && output != INVALID_HANDLE_VALUE && GetFileType(output) != FILE_TYPE_UNKNOWN) {
        return writeToStandardOutput(text);
    }
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) {
        return false;
    }
    const HANDLE console
        = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    // The shell has not waited: its prompt stands in the line already.
    const QString shown = QLatin1Char('\n') + text;
    DWORD written = 0;
    const bool done = console != INVALID_HANDLE_VALUE
        && WriteConsoleW(console, shown.utf16(), static_cast<DWORD>(shown.size()), &written, nullptr) != 0;
    if (console != INVALID_HANDLE_VALUE) {
        CloseHandle(console);
    }
    FreeConsole();
    return done;
}

#else

bool writeToConsole(const QString& text)
{
    return writeToStandardOutput(text);
}

#endif
