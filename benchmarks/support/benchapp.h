#pragma once

#include <functional>

/// Runs `run` in an application set up as in a test (runIsolated). Its debug lines go to a file in its
/// working directory: they cost what they cost, but do not break the table. Gives the exit status.
int runBenchmark(int argc, char* argv[], const std::function<int()>& run);

/// Handles events until none is left, so that everything has been painted that was to be.
void settle();

/// Runs the event loop for `ms` milliseconds.
void letRun(int ms);
