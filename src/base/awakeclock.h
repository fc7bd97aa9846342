#pragma once

#include <QtGlobal>

/// Milliseconds since some moment before the program's start, by a clock that nobody can set and that stands
/// still while the machine sleeps.
qint64 awakeMs();

/// Milliseconds that the machine has slept since some moment before the program's start; always 0 where the
/// platform does not tell.
qint64 sleptMs();
