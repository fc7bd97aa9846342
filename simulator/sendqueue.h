#pragma once

#include <QByteArray>
#include <QList>

namespace Chamber {

/// What is on its way to the client. Everything leaves in the order it came: what is late keeps back all that
/// is behind it, as on a real bus. Times are ms on one scale that never runs back.
class SendQueue
{
public:
    /// How long a piece waits for company, at the most.
    static constexpr qint64 longestWaitMs = 1000;

    /// `bytes` leave at `dueMs` at the earliest, in one piece with those that wait for company.
    void push(const QByteArray& bytes, qint64 dueMs);

    /// `bytes` leave with what is pushed next, or by themselves longestWaitMs after `dueMs`.
    void pushWaiting(const QByteArray& bytes, qint64 dueMs);

    /// All bytes whose time has come at `nowMs`; they are gone from here then.
    QByteArray takeDue(qint64 nowMs);

    bool isEmpty() const { return entries.isEmpty(); }

    /// When there is something to take next. Not for an empty queue.
    qint64 nextDueMs() const { return entries.first().dueMs; }

    /// How many bytes are waiting.
    int byteCount() const { return bytesWaiting; }

    void clear();

private:
    struct Entry
    {
        QByteArray bytes;
        qint64 dueMs = 0;
        bool waits = false;
    };
    void add(const QByteArray& bytes, qint64 dueMs, bool waits);

    QList<Entry> entries;
    int bytesWaiting = 0;
};

} // namespace Chamber
