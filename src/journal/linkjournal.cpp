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

// Every byte a character; NUL, which closes all shutters, is one too.
QString textOf(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

} // namespace

LinkJournal::LinkJournal(Journal& target, Journal* wire)
    : journal(target)
    , bytesJournal(wire)
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
    if (bytesJournal != nullptr) {
        bytesJournal->write("sent", {{"bytes", textOf(bytes)}});
    }
}

void LinkJournal::received(const QByteArray& bytes)
{
    if (bytesJournal != nullptr) {
        bytesJournal->write("received", {{"bytes", textOf(bytes)}});
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
    tellUnasked(line);
}

// At most one a second, and no more than its beginning: a flood of lines would take the link's time and the
// journal's room.
void LinkJournal::tellUnasked(const QByteArray& line)
{
    constexpr qint64 pauseMs = 1000;
    constexpr int longestBeginning = 100;
    const qint64 now = WallClock::nowMs();
    if (now < nextUnaskedMs) {
        ++untoldLines;
        return;
    }
    nextUnaskedMs = now + pauseMs;
    journal.write("unasked-line", {{"line", textOf(line.left(longestBeginning))}});
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
                {{"asked", QStringLiteral("0") + QLatin1Char(readUnit)}, {"line", textOf(line)}});
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
    if (untoldLines > 0 && WallClock::nowMs() >= nextUnaskedMs) {
        journal.write("unasked-lines", {{"count", QString::number(untoldLines)}});
        untoldLines = 0;
    }
    if (isAwaiting && !isHeldTold && WallClock::nowMs() - awaitedSinceMs > heldMs) {
        isHeldTold = true;
        journal.write("bus-held");
    }
}
