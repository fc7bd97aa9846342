#pragma once

#include "support/messagecapture.h"
#include "support/scriptedadapter.h"
#include "support/stationwindow.h"
#include "support/ticks.h"
#include "support/wire.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <functional>
#include <memory>

/// A real station's window in English, its adapter played by the test.
class Station : public StationWindow
{
public:
    /// Held: nothing happens on its own, the test ticks and moves the clock (DrivenClock). Running: the
    /// station's timers and its clock are live.
    enum class Time { Held, Running };

    /// Ticks of a polling round without a channel in use.
    static constexpr int emptyRound = 3 * Channels::count;

    explicit Station(Time time = Time::Held);
    ~Station();
    Station(const Station&) = delete;
    Station& operator=(const Station&) = delete;

    /// Stores which channels are in use, for the next open().
    static void storeInUse(const QList<int>& channels);

    /// Builds the window and takes its opening bytes off the wire: false when they are not the opening.
    bool open();

    /// `times` ticks of the polling, at once; what they sent or shall receive is still on its way.
    void tick(int times = 1) const { callSlot(&window(), "WatchTMP", times); }

    /// Ticks, with every request answered as a controller would, until `condition` holds; false when it does
    /// not within `maximumTicks`. Reads are answered from `answers`; all that comes is kept in `reads`,
    /// `setPoints` and masks().
    bool tickUntil(const std::function<bool()>& condition, int maximumTicks = 5000);
    /// One polling round more, all channels answered: the next record is written.
    bool round();
    /// Has every channel answer with its own reading (Wire::ownReading).
    void answerOwnReadings();

    /// The masks of the shutter commands that came since the opening or forget(), in order.
    QByteArray masks() const;
    /// Forgets all that came.
    void forget();

    /// Lines in the temperature record.
    static int records();

    ScriptedAdapter adapter;
    QMap<int, QByteArray> answers; ///< what a channel's read is answered with; 25 deg C where nothing is said
    QList<QByteArray> setPoints; ///< whole messages (Wire::setPoint), in the order of arrival
    QList<int> reads; ///< the channels read, in the order of arrival

private:
    bool answer();

    QuietPlatform quiet;
    QByteArray addressBefore;
    QByteArray takenMasks;
    std::unique_ptr<HeldTicks> held;
    std::unique_ptr<DrivenClock> clock;
};
