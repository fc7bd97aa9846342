#pragma once

#include <QtGlobal>

/// The one clock. Everything that needs "now" asks nowMs(); the shipped program never changes the source. Tests
/// and soaks put their own source in place and drive hours in milliseconds.
namespace WallClock {

/// Gives the time in milliseconds since the epoch (1970-01-01T00:00:00 UTC).
using Source = qint64 (*)();

/// The system's time at the program's start, carried on by a clock that nobody can set and that stands still while
/// the machine sleeps: neither a stepped system clock nor a nap moves a set point or a program's step.
qint64 carriedOnMs();

extern Source source;

/// Now, in milliseconds since the epoch; never steps back.
inline qint64 nowMs()
{
    return source();
}

} // namespace WallClock
