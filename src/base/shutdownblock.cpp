#include "base/shutdownblock.h"

#ifdef Q_OS_WIN

#include <windows.h>

#include <string>

namespace {

HWND handleOf(quintptr window)
{
    return reinterpret_cast<HWND>(window); // what the toolkit's identifier is on Windows
}

} // namespace

PlatformRefusal blockShutdown(quintptr window, const QString& reason)
{
    const std::wstring text = reason.toStdWString();
    return ShutdownBlockReasonCreate(handleOf(window), text.c_str()) != 0 ? PlatformRefusal()
                                                                          : platformRefusal();
}

void allowShutdown(quintptr window)
{
    ShutdownBlockReasonDestroy(handleOf(window));
}

#else

PlatformRefusal blockShutdown(quintptr /*window*/, const QString& /*reason*/)
{
    return platformRefusal();
}

void allowShutdown(quintptr /*window*/) { }

#endif
