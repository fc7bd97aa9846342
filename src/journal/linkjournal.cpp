#include "journal/linkjournal.h"

#include "base/channels.h"
#include "base/wallclock.h"
#include "temperature/controllermessage.h"

namespace {

// Commands without a value: the adapter answers them with a line of its own.
bool isQuery(const QByteArray& bytes)
{
    return bytes == "++eoi\n" || bytes == "++addr\n" || bytes == "++auto\n";
}

} // namespace

LinkJournal::LinkJournal(Journal& target, bool everyByte)
    : journal(target)
    , tellsBytes(everyByte)
{
}

void LinkJournal::connected()
{
    journal.write("connected");
}

void LinkJournal::notConnected(bool wasUp, const QString& why)
{
    journal.write(wasUp ? "lost" : "refused", {{"why", why}});
}

void LinkJournal::sent(const QByteArray& bytes)
{
    awaitedLines += isQuery(bytes) ? 1 : 0;
    if (bytes.startsWith('\x04')) {
        readUnit = bytes.endsWith("M1\x05\n") ? bytes[2] : '\0';
    }
    if (tellsBytes) {
        journal.write("sent", {{"bytes", QString::fromLatin1(bytes)}});
    }
}

void LinkJournal::received(const QByteArray& bytes)
{
    if (tellsBytes) {
        journal.write("received", {{"bytes", QString::fromLatin1(bytes)}});
    }
}

void LinkJournal::replyAwaited()
{
    ++awaitedLines;
    if (!isAwaiting) {
        isAwaiting = true;
        awaitedSinceMs = WallClock::nowMs();
    }
}

void LinkJournal::lineArrived(const QByteArray& line, bool wasAwaited)
{
    if (isHeldTold) {
        const qint64 ms = WallClock::nowMs() - awaitedSinceMs;
        journal.write("bus-free", {{"held-ms", QString::number(ms)}});
    }
    isAwaiting = false;
    isHeldTold = false;
    if (wasAwaited && readUnit != '\0') {
        followReading(line);
    }
    if (awaitedLines > 0) {
        --awaitedLines;
        return;
    }
    journal.write("unasked-line", {{"line", QString::fromLatin1(line)}});
}

void LinkJournal::followReading(const QByteArray& line)
{
    const bool hasUnit = line.size() == ControllerMessage::replyLength && line[0] == '0'
        && Channels::has(line[1] - Channels::unitDigit(0));
    if (hasUnit) {
        followShift(line[1] == readUnit, line);
    }
}

void LinkJournal::followShift(bool isOwn, const QByteArray& line)
{
    const bool unitsAreKnown = ownReadings == Channels::count;
    if (!isOwn && unitsAreKnown) {
        if (strangeReadings == 0) {
            shiftedSinceMs = WallClock::nowMs();
            journal.write("readings-shifted",
                {{"asked", QStringLiteral("0") + QLatin1Char(readUnit)},
                    {"line", QString::fromLatin1(line)}});
        }
        ++strangeReadings;
        return;
    }
    ownReadings = isOwn ? qMin(ownReadings + 1, Channels::count) : 0;
    if (strangeReadings > 0) {
        const qint64 ms = WallClock::nowMs() - shiftedSinceMs;
        journal.write("readings-in-order",
            {{"strange", QString::number(strangeReadings)}, {"shifted-ms", QString::number(ms)}});
        strangeReadings = 0;
    }
}

void LinkJournal::tick()
{
    if (isAwaiting && !isHeldTold && WallClock::nowMs() - awaitedSinceMs > heldMs) {
        isHeldTold = true;
        journal.write("bus-held");
    }
}
