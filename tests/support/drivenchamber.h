#pragma once

#include "simulator/chamberserver.h"
#include "simulator/replayserver.h"

#include "support/messagecapture.h"
#include "support/processfigures.h"
#include "support/stationwindow.h"
#include "support/ticks.h"

#include <memory>

/// Follows a driven station: is told what goes over the wire and which of the station's timers has just
/// ticked, in the order in which it happens. This one does nothing.
class DrivenWatcher
{
public:
    DrivenWatcher() = default;
    virtual ~DrivenWatcher() = default;
    DrivenWatcher(const DrivenWatcher&) = delete;
    DrivenWatcher& operator=(const DrivenWatcher&) = delete;

    virtual void cameFromStation(const QByteArray& /*bytes*/) { }
    virtual void goesToStation(const QByteArray& /*bytes*/) { }
    /// The chamber has cut the connection, or the station has left.
    virtual void linkGone() { }
    /// A line of the chamber's log, without the time.
    virtual void chamberSaid(const QByteArray& /*event*/) { }
    /// WatchTMP, APOneTick or the ActionShutter of a shutter command that waits has run.
    virtual void polled() { }
    virtual void played() { }
    virtual void retried() { }
    /// Whether the station must have sent bytes that have not come yet.
    virtual bool isAwaitingBytes() const { return false; }
};

/// A station's window and the simulated chamber in one process and one thread, by one clock that is driven:
/// an hour of station time takes seconds, and the same seed gives the same hour. Between two ticks, 10 ms
/// apart, everything arrives that was sent. The station's debug lines go nowhere.
class DrivenChamber : public StationWindow
{
public:
    static constexpr qint64 tickMs = 10;

    /// A chamber with these options, but listening at ownLoopbackAddress(), where the station looks for it.
    DrivenChamber(const Chamber::Options& options, DrivenWatcher& watcher);
    /// A recorded session instead of a chamber.
    DrivenChamber(const Chamber::Recording& recording, DrivenWatcher& watcher);
    ~DrivenChamber();

    /// Builds the window and lets its opening arrive.
    void open();
    /// The window is gone, as if its process had ended, and the chamber has seen it.
    void close();

    /// Runs the station for `ms` of its time.
    void run(qint64 ms);
    /// The station stands still while `ms` pass: no tick, nothing taken in.
    void stand(qint64 ms);
    /// Lets arrive what is on its way.
    void settle();
    /// Has `action` done, by the operator's hands, and lets arrive what it set off.
    template <class Action> void act(Action action)
    {
        const Stopwatch time;
        action();
        settle();
        hasCostliestAction = actions.note(time);
    }

    /// Not where a recording is played.
    const Chamber::ChamberServer& chamber() const { return *server; }
    /// What the ticks have taken, all that they set off included, and the operator's actions; the chamber's
    /// part is counted, too.
    const Costs& tickCosts() const { return ticks; }
    const Costs& actionCosts() const { return actions; }
    /// Whether no action before the last one, or no tick before the last run(), took more of the processor.
    bool wasCostliestAction() const { return hasCostliestAction; }
    bool hadCostliestTick() const { return hasCostliestTick; }

private:
    class Reads;

    explicit DrivenChamber(DrivenWatcher& watcher);

    template <class Server> void listenTo(Server& farEnd);
    void chamberSaid(const QByteArray& event);
    void tick();
    void tickServer();
    bool isOnTheWay() const;

    DrivenWatcher& follower;
    QuietPlatform platform;
    QByteArray addressBefore;
    HeldTicks held;
    DrivenClock clock;
    std::unique_ptr<Chamber::ChamberServer> server; // one of these two
    std::unique_ptr<Chamber::ReplayServer> replay;
    std::unique_ptr<Reads> reads;
    QWidget* programRun = nullptr;
    qint64 traffic = 0; // pieces of bytes that came or went
    bool isLinkUp = false;
    bool isUnread = false; // the station has still to take what was sent to it
    Costs ticks{100.0, 10000};
    Costs actions{1500.0, 100}; // a row menu, with the table painted, takes a few hundred
    bool hasCostliestTick = false;
    bool hasCostliestAction = false;
};
