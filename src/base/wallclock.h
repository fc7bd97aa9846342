#pragma once

#include <QtGlobal>

/// The one clock. Everything that needs "now" asks nowMs(); the shipped program never changes the sources.
/// Tests and soaks put their own in place and drive hours in milliseconds.
namespace WallClock {

/// Gives the time in milliseconds since the epoch (1970-01-01T00:00:00 UTC).
using Source = qint64 (*)();

/// The system's time at the program's start, carried on by a clock that nobody can set and that stands still
/// while the machine sleeps: neither a stepped system clock nor a nap moves a set point or a program's step.
qint64 carriedOnMs();
/// What the system's clock says, which may step.
qint64 steppingMs();

extern Source source;
extern Source systemSource;
extern Source sleepSource; // how long the machine has slept, in milliseconds

/// Now, in milliseconds since the epoch; never steps back. By this everything is timed.
inline qint64 nowMs()
{
    return source();
}

/// Now as the system's clock has it, in milliseconds since the epoch. Only for telling people when something
/// happened.
inline qint64 systemMs()
{
    return systemSource();
}

/// How many milliseconds the machine has slept since some moment before the program's start. Only for telling
/// people.
inline qint64 sleptMs()
{
    return sleepSource();
}

} // namespace WallClock
