#include "base/throttling.h"

#ifdef Q_OS_WIN

#include <windows.h>

namespace {

bool optOutOf(ULONG kinds)
{
    PROCESS_POWER_THROTTLING_STATE state = {};
    state.Version = PROCESS_POWER_THROTTLING_CURRENT_VERSION;
    state.ControlMask = kinds; // ours to say, and, as the state mask leaves them out, off
    return SetProcessInformation(GetCurrentProcess(), ProcessPowerThrottling, &state, sizeof(state)) != 0;
}

} // namespace

PlatformRefusal refuseThrottling()
{
    if (optOutOf(
            PROCESS_POWER_THROTTLING_EXECUTION_SPEED | PROCESS_POWER_THROTTLING_IGNORE_TIMER_RESOLUTION)) {
        return {};
    }
    PlatformRefusal refusal = platformRefusal();
    if (optOutOf(PROCESS_POWER_THROTTLING_EXECUTION_SPEED)) {
        refusal.kind = PlatformRefusal::Kind::ErrorForTimers;
    }
    return refusal;
}

#else

PlatformRefusal refuseThrottling()
{
    return platformRefusal();
}

#endif
