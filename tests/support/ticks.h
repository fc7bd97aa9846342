#pragma once

#include <QMap>
#include <QObject>
#include <QString>

/// While it lives, the station's 10 ms timers are silent: the test drives the ticks itself, by calling the
/// timers' slots. Other timers run on.
class HeldTicks : public QObject
{
    Q_OBJECT

public:
    HeldTicks();
    ~HeldTicks() override;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

/// Notes how often the station's timers fire, by their intervals: all that fire while it lives and belong to
/// no other object, as a toolkit's own do.
class FiredTimers : public QObject
{
    Q_OBJECT

public:
    FiredTimers();

    /// In ms, ascending, each once: "10" or "10 100".
    QString intervals() const;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QMap<int, QString> fired; // the text of each
};

/// While it lives, the program's wall clock stands still and moves only by order.
class DrivenClock
{
public:
    /// The clock stands at `nowMs` (ms since the epoch).
    explicit DrivenClock(qint64 nowMs = 1700000000000);
    ~DrivenClock();
    DrivenClock(const DrivenClock&) = delete;
    DrivenClock& operator=(const DrivenClock&) = delete;

    static void advance(qint64 ms);
    static void set(qint64 nowMs);
    static qint64 nowMs();
    /// Somebody sets the system's clock, by `ms`.
    static void stepSystem(qint64 ms);
    /// The machine sleeps for `ms`: only the system's clock goes on.
    static void sleep(qint64 ms);
};

/// Calls the slot `slot` of `object` (public or not) `times` times.
void callSlot(QObject* object, const char* slot, int times = 1);
