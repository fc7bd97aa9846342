#pragma once

#include <QtGlobal>

/// Notices what is wrong with time: a system clock that was set, a machine that slept, a tick that came late.
/// It is shown all clocks at every tick and compares them with the tick before.
class TimeWatch
{
public:
    /// How much less than this is not worth a word, in ms: clocks are read one after the other, and time
    /// servers slew by a little all the time.
    static constexpr qint64 worthTellingMs = 100;

    struct Clocks
    {
        qint64 steadyMs = 0; ///< nobody can set it, stands still in sleep
        qint64 systemMs = 0; ///< what the system's clock says
        qint64 sleptMs = 0; ///< how long the machine has slept
    };

    /// What happened since the tick before; each 0 when there is nothing to tell. In ms.
    struct Findings
    {
        qint64 steppedMs = 0; ///< the system's clock was set by so much, back when negative
        qint64 sleptMs = 0;
        qint64 lateMs = 0; ///< so much later than `tickMs` after the tick before
    };

    /// `tickMs` is the time between two ticks.
    explicit TimeWatch(qint64 tickMs)
        : tick(tickMs)
    {
    }

    /// Finds nothing at the first call.
    Findings look(const Clocks& now);

private:
    qint64 tick;
    Clocks before;
    bool hasLooked = false;
};
