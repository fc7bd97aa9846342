#pragma once

#include "gpib/linkobserver.h"
#include "journal/journal.h"

#include <array>

/// Has the journal tell what happens on the link: when the connection comes and goes, when the bus is held,
/// lines that nobody asked for, readings that stand under the wrong channel. Every byte goes to a journal of
/// its own, when there is one: bytes are so many that they would push everything else out.
///
/// Whose a reading is can be told only of controllers that begin their lines with their unit ("01" to "09").
/// That these do is believed once as many readings in a row as there are channels began with the unit that
/// was asked.
class LinkJournal : public LinkObserver
{
public:
    /// How long a reply may be awaited before the bus counts as held.
    static constexpr qint64 heldMs = 1000;

    /// `target` must outlive this, and `wire`, which may be null, too.
    explicit LinkJournal(Journal& target, Journal* wire = nullptr);

    void connected() override;
    void notConnected(bool wasUp, const QString& why) override;
    void sent(const QByteArray& bytes) override;
    void received(const QByteArray& bytes) override;
    void replyAwaited() override;
    void lineArrived(const QByteArray& line, bool wasAwaited) override;

    /// Tells a bus that is held by now, and how many unasked lines came behind the last one that was told.
    void tick();

private:
    void tellUnasked(const QByteArray& line);
    void followReading(const QByteArray& line);
    void followShift(bool isOwn, const QByteArray& line);

    Journal& journal;
    Journal* bytesJournal;
    int untoldLines = 0; // unasked ones
    qint64 nextUnaskedMs = 0;
    int awaitedLines = 0; // answers that have still to come, the adapter's own included
    char readUnit = 0; // the digit of the controller that was asked last; 0 when the last message was no read
    int ownReadings = 0; // in a row, up to as many as there are channels
    int strangeReadings = 0; // since the readings shifted
    qint64 shiftedSinceMs = 0;
    bool isAwaiting = false;
    bool isHeldTold = false;
    qint64 awaitedSinceMs = 0;
};
