#pragma once

#include <QString>

#include <optional>

/// What the power plan in force says about a PC that runs on mains and that nobody touches.
struct PowerSettings
{
    QString plan; ///< its name, in the system's language
    int sleepAfterSec; ///< 0 is never
    int hibernateAfterSec; ///< 0 is never
};

/// Nothing where the platform does not tell.
std::optional<PowerSettings> powerSettings();
