#pragma once

#include "base/platformrefusal.h"
#include "base/powersettings.h"
#include "base/ticklateness.h"

#include <QString>

#include <optional>

/// Whether a PC can run the station for a day: how late a timer like the station's ticks, and what the power
/// plan does to a PC that nobody touches.
struct PcCheck
{
    TickLateness ticks;
    std::optional<PowerSettings> power; ///< nothing where the system does not tell
    PlatformRefusal throttling; ///< why the process could not opt out of throttling; none when it could
    PlatformRefusal awake; ///< why the PC could not be kept awake; none when it could

    /// The ticks are fine, and the PC neither sleeps nor hibernates by itself.
    bool isPassed() const;

    /// All of it in words and a table, in the language of the application.
    QString report() const;
};

/// Lets a timer of 10 ms run for `seconds` and collects the rest. Needs an application object; turns its
/// event loop.
PcCheck checkPc(int seconds);
