#pragma once

#include <QString>

/// Whether this process may write everything (root), so that what others may not do cannot be tried in it.
bool mayWriteEverything();

/// Runs the test function `function` of this program once more as the user "nobody", in a working directory
/// of that user's own; true when it passed there. What it printed is printed here when it did not.
bool passesAsOrdinaryUser(const QString& function);
