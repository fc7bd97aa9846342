#pragma once

#include <QVector>

/// How late the ticks of a repeating timer came, collected tick by tick. A tick's lateness is the time from
/// the tick before it beyond the timer's interval; a tick that comes early is not late.
class TickLateness
{
public:
    /// So many ticks came later than the limit before and not later than `upToMs`; the last limit is
    /// infinite.
    struct Class
    {
        double upToMs;
        int ticks;
    };

    /// The timer's interval in ms, more than 0.
    explicit TickLateness(double intervalMs);

    /// A tick at `nowMs`, by a clock that nobody sets. The first one only starts the measurement.
    void tick(double nowMs);

    int count() const;
    /// ms from tick to tick; 0 before there are two.
    double meanIntervalMs() const;
    double latestMs() const { return latest; }
    const QVector<Class>& classes() const { return histogram; }

    /// Whether the station could go by this timer: its counts of ticks stand for times (300 for the 3 s it
    /// waits for an answer), which may be a tenth longer, and no tick is more than 0.1 s late.
    bool isFine() const;

private:
    double interval;
    double first = 0.0;
    double last = 0.0;
    double latest = 0.0;
    bool hasBegun = false;
    QVector<Class> histogram;
};
