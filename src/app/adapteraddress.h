#pragma once

#include <QString>

/// The adapter's TCP port; the same in every laboratory.
constexpr int adapterPort = 1234;

/// The adapter's host: the environment variable NELVO_ADAPTER where it is set and not empty, else what the
/// file nelvo.ini beside the program names, else the address compiled into the program (the CMake variable
/// NELVO_ADAPTER_ADDRESS).
QString adapterAddress();

/// Why nobody can tell which adapter is meant, a sentence for the operator; empty when all is well. A station
/// that went by the compiled address then would command a chamber that nobody meant.
QString adapterMistake();
