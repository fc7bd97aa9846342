#pragma once

#include "soak/model/stationmodel.h"

/// What the window shows otherwise than by the rules: the panels of shutters and cells and the program's bar.
/// Empty when all is as it should be. In any language: buttons go by their colours.
QString panelDifference(const StationWindow& station, const StationModel& model);

/// The same for the rows of the program table.
QString tableDifference(StationWindow& station, const StationModel& model);
