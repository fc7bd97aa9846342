#include "base/shutdownblock.h"

#include "base/platformrefusal.h"

#ifdef Q_OS_WIN

#include <windows.h>

#include <string>

namespace {

HWND handleOf(quintptr window)
{
    return reinterpret_cast<HWND>(window); // what the toolkit's identifier is on Windows
}

} // namespace

QString blockShutdown(quintptr window, const QString& reason)
{
    const std::wstring text = reason.toStdWString();
    return ShutdownBlockReasonCreate(handleOf(window), text.c_str()) != 0 ? QString() : platformRefusal();
}

void allowShutdown(quintptr window)
{
    ShutdownBlockReasonDestroy(handleOf(window));
}

#else

QString blockShutdown(quintptr /*window*/, const QString& /*reason*/)
{
    return platformRefusal();
}

void allowShutdown(quintptr /*window*/) { }

#endif
