#include "base/powersettings.h"

#ifdef Q_OS_WIN

// Before windows.h, for the settings' identifiers to be defined here.
#include <initguid.h>

#include <windows.h>

#include <powrprof.h>

#include <memory>

namespace {

struct FreesLocal
{
    void operator()(GUID* guid) const { LocalFree(guid); }
};

QString nameOf(const GUID& plan)
{
    wchar_t name[256] = {};
    DWORD bytes = sizeof(name) - sizeof(wchar_t);
    const bool isTold
        = PowerReadFriendlyName(nullptr, &plan, nullptr, nullptr, reinterpret_cast<UCHAR*>(name), &bytes)
        == ERROR_SUCCESS;
    return isTold ? QString::fromWCharArray(name) : QString();
}

std::optional<int> onMains(const GUID& plan, const GUID& group, const GUID& setting)
{
    DWORD value = 0;
    return PowerReadACValueIndex(nullptr, &plan, &group, &setting, &value) == ERROR_SUCCESS
        ? std::optional<int>(static_cast<int>(value))
        : std::nullopt;
}

} // namespace

std::optional<PowerSettings> powerSettings()
{
    GUID* active = nullptr;
    if (PowerGetActiveScheme(nullptr, &active) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const std::unique_ptr<GUID, FreesLocal> plan(active);
    const std::optional<int> sleep = onMains(*plan, GUID_SLEEP_SUBGROUP, GUID_STANDBY_TIMEOUT);
    if (!sleep) {
        return std::nullopt;
    }
    // A PC that cannot hibernate has no such setting.
    const int hibernate = onMains(*plan, GUID_SLEEP_SUBGROUP, GUID_HIBERNATE_TIMEOUT).value_or(0);
    return PowerSettings{nameOf(*plan), *sleep, hibernate};
}

#else

std::optional<PowerSettings> powerSettings()
{
    return std::nullopt;
}

#endif
