#include "growthcheck/app/terminal.h"

#include <cstdio>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace GrowthCheck {

namespace {

// False where standard output is no console.
bool writeToConsole(const QByteArray& utf8)
{
#ifdef Q_OS_WIN
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    if (GetConsoleMode(output, &mode) == 0) {
        return false;
    }
    const QString text = QString::fromUtf8(utf8);
    DWORD written = 0;
    WriteConsoleW(output, text.utf16(), static_cast<DWORD>(text.size()), &written, nullptr);
    return true;
#else
    Q_UNUSED(utf8)
    return false;
#endif
}

} // namespace

void writeOut(const QByteArray& utf8)
{
    if (!writeToConsole(utf8)) {
        std::fwrite(utf8.constData(), 1, static_cast<size_t>(utf8.size()), stdout);
    }
}

void complain(const QString& line)
{
    std::fprintf(stderr, "growthcheck: %s\n", line.toLocal8Bit().constData());
}

void waitForReader()
{
    std::getchar();
}

} // namespace GrowthCheck
