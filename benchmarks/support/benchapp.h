#pragma once

#include <functional>

/// Runs `run` in an application set up as the station's is (Fusion style), on the off-screen platform unless
/// the environment names another, in a temporary working directory that is gone afterwards. Its debug lines
/// go to a file there: they cost what they cost, but do not break the table. Gives the exit status.
int runBenchmark(int argc, char* argv[], const std::function<int()>& run);

/// The off-screen platform unless the environment names another; children inherit it.
void choosePlatform();

/// Runs the event loop for `ms` milliseconds.
void letRun(int ms);

/// Says on standard output what is broken and ends the program with exit status 1.
[[noreturn]] void fail(const char* what);
