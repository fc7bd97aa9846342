#pragma once

#include "simulator/faults.h"
#include "simulator/sendqueue.h"
#include "support/station.h"

#include <QByteArray>
#include <QList>

#include <array>
#include <optional>

/// A chamber on the driven clock for a real station: its cells follow their set points at once, its
/// controllers answer after a number of ticks. It notes what comes, and when.
class PlayedChamber
{
public:
    struct Arrival
    {
        qint64 ms = 0; ///< of the driven clock
        Wire::Message message;
    };

    /// `station` is open, its time held.
    explicit PlayedChamber(Station& station);

    /// What channel `channel` has, in deg C with one decimal.
    void setTemperature(int channel, double degC) { degrees.at(static_cast<size_t>(channel)) = degC; }
    /// Ticks from a request to its reply; 0 is before the next tick.
    void setReplyTicks(int ticks) { replyTicks = ticks; }
    /// What goes wrong with its replies, as the simulator has it.
    void setFaults(const Chamber::FaultRates& rates, quint64 seed) { faults.emplace(rates, seed); }
    /// Whether the polling's tick comes before the player's.
    void setPollingFirst(bool first) { isPollingFirst = first; }

    /// 10 ms pass: replies come, the station's timers fire, messages go.
    void tick();
    void ticks(int count);
    /// Two polling rounds, after which the panel shows the channels in use.
    void settle();

    /// The set points and shutter commands that came since the last call.
    QList<Arrival> takeArrivals();

private:
    void reply();
    void answer(const QByteArray& line, int channel);
    void obey(const Chamber::Delivery& delivery, qint64 dueMs);
    void turnTimers();
    void takeMessages();
    void fireShutterTimer();

    Station& station;
    MessageCapture debugLines;
    std::array<double, Channels::count> degrees{};
    Chamber::SendQueue replies;
    std::optional<Chamber::Faults> faults;
    bool isHalfOpen = false; // the far end takes and answers nothing more
    QList<Arrival> arrivals;
    int replyTicks = 0;
    bool isPollingFirst = true;
    bool isShutterTimerOn = false;
};
