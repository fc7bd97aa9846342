#pragma once

#include "support/scriptedadapter.h"
#include "support/ticks.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class MBEMain;
class QWidget;

/// The line a controller answers a read with: 11 characters, the value (0 deg C and more) at
/// 3 to 9.
QByteArray reading(double degC);

/// The bytes of a read of `channel` (0 to 8) as they come off the wire, line end included.
QByteArray readBytes(int channel);

/// The same for a set point; `value` is the text between "S1" and ETX.
QByteArray setPointBytes(int channel, const QByteArray& value);

/// A real station window, its adapter played by the test, its ticks and its clock driven by the test.
class StationFixture
{
public:
    /// Ticks held: nothing happens on its own. Ticks running: the station's timers are live.
    enum class Ticks { Held, Running };

    explicit StationFixture(Ticks ticks = Ticks::Held);
    ~StationFixture();
    StationFixture(const StationFixture&) = delete;
    StationFixture& operator=(const StationFixture&) = delete;

    /// Stores which channels are in use, for the next open().
    static void storeInUse(const QList<int>& channels);

    /// Builds the window and takes its opening bytes off the wire: false when they are not the opening.
    bool open();
    void close();

    /// `times` ticks of the watch, at once; what they sent or shall receive is still on its way.
    void tick(int times = 1);

    QString text(const QString& name) const;
    QString style(const QString& name) const;
    QString statusBar() const;
    QWidget* widget(const QString& name) const;

    /// A real click with the left button.
    void click(const QString& name);

    /// Replaces an entry's text by typing.
    void type(const QString& name, const QString& text);

    /// Ticks, with every request answered as a controller would, until `condition` holds; false when it does
    /// not within `maximumTicks`. Reads are answered from `answers`, set points are collected in `setPoints`.
    bool tickUntil(const std::function<bool()>& condition, int maximumTicks = 5000);

    /// One polling round more, all channels answered: the next record is written.
    bool round();

    /// Lines in the temperature record.
    static int records();

    ScriptedAdapter adapter;
    QMap<int, QByteArray> answers; ///< what a channel's read is answered with; 25 deg C where nothing is said
    QList<QByteArray> setPoints; ///< whole messages without the line end, in the order of arrival
    QList<int> reads; ///< the channels read, in the order of arrival
    std::unique_ptr<MBEMain> window;

private:
    bool answer();

    std::unique_ptr<HeldTicks> held;
    DrivenClock clock;
};
