#pragma once

#include <QString>

/// Writes `text` where whoever started the program from a command line reads it: to standard output, or, for
/// a Windows program without a console of its own, to the console it was started from. False when there is
/// neither, as after a double click.
bool writeToConsole(const QString& text);
