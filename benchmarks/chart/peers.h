#pragma once

#include "benchmarks/chart/subjects.h"

/// Whether the peer was there when the program was built.
bool hasQCustomPlot();
bool hasQwt();
