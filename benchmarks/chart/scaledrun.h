#pragma once

#include "benchmarks/chart/runtimes.h"

/// Whether this process was started by printScaledRuns().
bool isScaledRun();

/// Runs this program again on displays scaled by 1.25, 1.5 and 2 and prints its repaints against those of
/// `unscaled` that fill as many device pixels, and its slowest drag step. Nothing when those did not run.
void printScaledRuns(const Figures& figures, const RunTimes& unscaled);
