#pragma once

#include "base/platformrefusal.h"

/// Asks the platform to keep this process at full speed and its timers fine when its window is covered:
/// Windows 11 may tick it at 15.6 ms otherwise. For the life of the process. A Windows that does not know
/// the timers' part yet is asked for speed alone, and refuses the timers only.
PlatformRefusal refuseThrottling();
