#include "base/powerrequest.h"

#ifdef Q_OS_WIN

#include <windows.h>

#include <string>

PlatformRefusal PowerRequest::hold(const QString& reason)
{
    release();
    std::wstring text = reason.toStdWString();
    REASON_CONTEXT context = {};
    context.Version = POWER_REQUEST_CONTEXT_VERSION;
    context.Flags = POWER_REQUEST_CONTEXT_SIMPLE_STRING;
    context.Reason.SimpleReasonString = text.data();
    const HANDLE created = PowerCreateRequest(&context);
    if (created == INVALID_HANDLE_VALUE) {
        return platformRefusal();
    }
    if (PowerSetRequest(created, PowerRequestSystemRequired) == 0) {
        const PlatformRefusal refusal = platformRefusal();
        CloseHandle(created);
        return refusal;
    }
    request = created;
    return {};
}

void PowerRequest::release()
{
    if (request != nullptr) {
        CloseHandle(request); // ends what was asked for as well
        request = nullptr;
    }
}

#else

PlatformRefusal PowerRequest::hold(const QString& /*reason*/)
{
    return platformRefusal();
}

void PowerRequest::release() { }

#endif

PowerRequest::~PowerRequest()
{
    release();
}
