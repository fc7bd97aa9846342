#pragma once

#include <QDateTime>

/// The one place that reads the wall clock. Everything that needs "now" asks nowMs(); the shipped program
/// never changes the source, so it always reads the system's clock. Tests and soaks put their own source in
/// place and drive hours in milliseconds.
namespace WallClock {

/// Gives the time in milliseconds since the epoch (1970-01-01T00:00:00 UTC).
using Source = qint64 (*)();

inline qint64 systemNowMs()
{
    return QDateTime::currentMSecsSinceEpoch();
}

inline Source source = &systemNowMs;

/// Now, in milliseconds since the epoch. May step back when the system's clock is corrected.
inline qint64 nowMs()
{
    return source();
}

} // namespace WallClock
