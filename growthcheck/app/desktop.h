#pragma once

#include <QString>

namespace GrowthCheck {

/// Whether the desktop started this program, as it does with a file that is dropped on it, and nobody typed a
/// command. Known on Windows only; elsewhere no.
bool isStartedByDesktop();

/// Has the desktop show a file with the program that it has for it. False when that cannot be started.
bool showFile(const QString& fileName);

} // namespace GrowthCheck
