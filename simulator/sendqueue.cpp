#include "simulator/sendqueue.h"

namespace Chamber {

void SendQueue::push(const QByteArray& bytes, qint64 dueMs)
{
    add(bytes, dueMs, false);
}

void SendQueue::pushWaiting(const QByteArray& bytes, qint64 dueMs)
{
    add(bytes, dueMs + longestWaitMs, true);
}

QByteArray SendQueue::takeDue(qint64 nowMs)
{
    QByteArray due;
    while (!entries.isEmpty() && entries.first().dueMs <= nowMs) {
        due += entries.takeFirst().bytes;
    }
    bytesWaiting -= due.size();
    return due;
}

void SendQueue::clear()
{
    entries.clear();
    bytesWaiting = 0;
}

void SendQueue::add(const QByteArray& bytes, qint64 dueMs, bool waits)
{
    bytesWaiting += bytes.size();
    if (!entries.isEmpty() && entries.last().waits) {
        Entry& last = entries.last();
        last.bytes += bytes;
        last.waits = waits;
        last.dueMs = waits ? last.dueMs : dueMs;
        return;
    }
    entries.append({bytes, dueMs, waits});
}

} // namespace Chamber
