#pragma once

#include "growthcheck/check/finding.h"

/// Every kind of finding in a run. An error is where shutters or set points were not as the program has them.
/// A new one needs its line in docs/manual/*/findings.md.
namespace GrowthCheck::RunKinds {

// The program.
inline constexpr Kind tableDiffers{"table-differs", Severity::Error};
inline constexpr Kind edited{"edited", Severity::Error};
inline constexpr Kind stopped{"stopped", Severity::Error};
inline constexpr Kind brokenOff{"broken-off", Severity::Error};
inline constexpr Kind stillRuns{"still-runs", Severity::Note};
inline constexpr Kind stepUnexpected{"step-unexpected", Severity::Error};
inline constexpr Kind stepLate{"step-late", Severity::Warning};
inline constexpr Kind paused{"paused", Severity::Note};

// Shutters.
inline constexpr Kind shuttersWaited{"shutters-waited", Severity::Warning};
inline constexpr Kind shuttersOvertaken{"shutters-overtaken", Severity::Error};
inline constexpr Kind shuttersNotSent{"shutters-not-sent", Severity::Error};
inline constexpr Kind shuttersByHand{"shutters-by-hand", Severity::Error};

// Ramps.
inline constexpr Kind rampRefused{"ramp-was-refused", Severity::Error};
inline constexpr Kind rampMissing{"ramp-missing", Severity::Error};
inline constexpr Kind rampByHand{"ramp-by-hand", Severity::Error};
inline constexpr Kind rampStopped{"ramp-stopped", Severity::Error};
inline constexpr Kind setPointDiffers{"set-point-differs", Severity::Error};
inline constexpr Kind setPointMissing{"set-point-missing", Severity::Error};
inline constexpr Kind setPointLate{"set-point-late", Severity::Warning};
inline constexpr Kind controlOff{"control-off", Severity::Warning};
inline constexpr Kind inUse{"in-use", Severity::Note};
inline constexpr Kind temperatureOff{"temperature-off", Severity::Note};

// The link and time.
inline constexpr Kind linkLost{"link-lost", Severity::Error};
inline constexpr Kind busHeld{"bus-held", Severity::Warning};
inline constexpr Kind readingFailed{"reading-failed", Severity::Warning};
inline constexpr Kind readingsShifted{"readings-shifted", Severity::Warning};
inline constexpr Kind unaskedLine{"unasked-line", Severity::Warning};
inline constexpr Kind replyGarbled{"reply-garbled", Severity::Warning};
inline constexpr Kind replySplit{"reply-split", Severity::Note};
inline constexpr Kind slept{"slept", Severity::Warning};
inline constexpr Kind lateTick{"late-tick", Severity::Note};
inline constexpr Kind clockStepped{"clock-stepped", Severity::Note};
inline constexpr Kind linesLost{"lines-lost", Severity::Warning};

} // namespace GrowthCheck::RunKinds
