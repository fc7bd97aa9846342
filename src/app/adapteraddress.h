#pragma once

#include <QString>

/// The adapter's TCP port; the same in every laboratory.
constexpr int adapterPort = 1234;

/// The adapter's host: the environment variable NELVO_ADAPTER where it is set and not empty, else the address
/// compiled into the program (the CMake variable NELVO_ADAPTER_ADDRESS).
QString adapterAddress();
