#pragma once

#include "support/testtext.h"

#include <QtTest>

#include <functional>

/// Runs `run` in an application on the off-screen platform, in a temporary working directory of its own that
/// is gone afterwards, with standard paths in test mode: no test leaves a file behind or reads the user's.
int runIsolated(int argc, char* argv[], const std::function<int()>& run);

/// The main function of a test program.
#define NELVO_TEST_MAIN(TestClass)                                                                           \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        return runIsolated(argc, argv, [&] {                                                                 \
            TestClass test;                                                                                  \
            return QTest::qExec(&test, argc, argv);                                                          \
        });                                                                                                  \
    }
