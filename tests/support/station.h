#pragma once

#include "app/mbemain.h"
#include "support/messagecapture.h"
#include "support/namedwidgets.h"
#include "support/panel.h"
#include "support/programtab.h"
#include "support/scriptedadapter.h"
#include "support/testtext.h"
#include "support/ticks.h"
#include "support/wire.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <functional>
#include <memory>

/// A real station's window in English, its adapter played by the test. Widgets go by their names on the form;
/// those of a channel or shutter are named by cell() (support/panel.h).
class Station
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

    /// Builds the window, without showing it (clicks and keys reach it all the same), and takes its opening
    /// bytes off the wire: false when they are not the opening.
    bool open();
    bool isOpen() const { return main != nullptr; }
    void close();
    MBEMain& window() const { return *main; }
    ProgramTab& program();

    /// The widget of that name; a fatal error when there is none of that class.
    template <class Widget> Widget& find(const QString& name) const { return widgets->find<Widget>(name); }
    QWidget& widget(const QString& name) const { return find<QWidget>(name); }
    QString text(const QString& name) const { return widget(name).property("text").toString(); }
    QString style(const QString& name) const { return widget(name).styleSheet(); }
    QString statusBar() const;
    /// The buttons of a row, "CS" or "RunT", as letters: "o" for `on` in yellow, "x" for `off` in olive, "?"
    /// for anything else.
    QString states(const char* row, const QString& on, const QString& off) const;
    /// Whether a channel's Run button shows a running ramp, by text and colour.
    bool isRamping(int channel) const;

    /// A real click with the left button.
    void click(const QString& name) const;
    /// Replaces an entry's text by typing.
    void type(const QString& name, const QString& text) const;
    /// Types a target (deg C) and a duration (minutes) for a channel and clicks its Run button.
    void pressRun(int channel, const QString& target, const QString& duration) const;
    /// Turns the temperature control on or off, by the keyboard: it is a button without a partner.
    void togglePolling() const;

    /// `times` ticks of the polling, at once; what they sent or shall receive is still on its way.
    void tick(int times = 1) const { callSlot(main.get(), "WatchTMP", times); }

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
    QChar state(const QString& name, const QString& on, const QString& off) const;
    bool answer();

    QuietPlatform quiet;
    QByteArray addressBefore;
    QByteArray takenMasks;
    std::unique_ptr<HeldTicks> held;
    std::unique_ptr<DrivenClock> clock;
    std::unique_ptr<MBEMain> main;
    std::unique_ptr<NamedWidgets> widgets;
    std::unique_ptr<ProgramTab> tab;
};
