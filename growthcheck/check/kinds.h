#pragma once

#include "growthcheck/check/finding.h"

/// Every kind of finding. A new one needs its line in docs/manual/*/findings.md.
namespace GrowthCheck::Kinds {

// The file.
inline constexpr Kind noSteps{"no-steps", Severity::Error};
inline constexpr Kind lineTooLong{"line-too-long", Severity::Warning};
inline constexpr Kind lineSkipped{"line-skipped", Severity::Warning};
inline constexpr Kind remark{"remark", Severity::Note};
inline constexpr Kind surplusRow{"surplus-row", Severity::Warning};
inline constexpr Kind surplusField{"surplus-field", Severity::Warning};
inline constexpr Kind rowNumber{"row-number", Severity::Note};
inline constexpr Kind damagedText{"damaged-text", Severity::Warning};

// Texts.
inline constexpr Kind setPointText{"set-point-text", Severity::Warning};
inline constexpr Kind setPointNegative{"set-point-negative", Severity::Warning};
inline constexpr Kind setPointWide{"set-point-wide", Severity::Warning};
inline constexpr Kind shutterText{"shutter-text", Severity::Warning};
inline constexpr Kind timeText{"time-text", Severity::Error};
inline constexpr Kind timeRounded{"time-rounded", Severity::Note};
inline constexpr Kind timesText{"times-text", Severity::Warning};

// Groups.
inline constexpr Kind timesDiffer{"times-differ", Severity::Warning};
inline constexpr Kind timesBelowOne{"times-below-one", Severity::Warning};
inline constexpr Kind repeatsCut{"repeats-cut", Severity::Warning};
inline constexpr Kind ungroupedRepeat{"ungrouped-repeat", Severity::Warning};
inline constexpr Kind groupAgain{"group-again", Severity::Note};
inline constexpr Kind groupAlike{"group-alike", Severity::Warning};

// Rows and steps.
inline constexpr Kind endRow{"end-row", Severity::Warning};
inline constexpr Kind rowNotReached{"row-not-reached", Severity::Warning};
inline constexpr Kind lastRow{"last-row", Severity::Warning};
inline constexpr Kind shortStep{"short-step", Severity::Warning};
inline constexpr Kind holdOpen{"hold-open", Severity::Warning};
inline constexpr Kind holdArsenic{"hold-arsenic", Severity::Note};
inline constexpr Kind holdSetPoints{"hold-set-points", Severity::Warning};
inline constexpr Kind endlessStep{"endless-step", Severity::Error};
inline constexpr Kind checkStops{"check-stops", Severity::Error};

// Ramps.
inline constexpr Kind rampRefused{"ramp-refused", Severity::Error};
inline constexpr Kind startUnknown{"start-unknown", Severity::Warning};
inline constexpr Kind startLagging{"start-lagging", Severity::Note};
inline constexpr Kind rampReplaced{"ramp-replaced", Severity::Warning};
inline constexpr Kind rampOutlastsStep{"ramp-outlasts-step", Severity::Warning};
inline constexpr Kind extraSetPoint{"extra-set-point", Severity::Note};
inline constexpr Kind levelRamp{"level-ramp", Severity::Note};

// The whole and its end.
inline constexpr Kind rateMissing{"rate-missing", Severity::Warning};
inline constexpr Kind totalTime{"total-time", Severity::Note};
inline constexpr Kind openAtEnd{"open-at-end", Severity::Warning};
inline constexpr Kind rampsAtEnd{"ramps-at-end", Severity::Warning};
inline constexpr Kind hotAtEnd{"hot-at-end", Severity::Note};

} // namespace GrowthCheck::Kinds
