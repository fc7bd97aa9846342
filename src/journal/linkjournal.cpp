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
        journal.write("sent", {{"bytes", journalBytes(bytes)}});
    }
}

void LinkJournal::received(const QByteArray& bytes)
{
    if (tellsBytes) {
        journal.write("received", {{"bytes", journalBytes(bytes)}});
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
    journal.write("unasked-line", {{"line", journalBytes(line)}});
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
                {{"asked", QStringLiteral("0") + QLatin1Char(readUnit)}, {"line", journalBytes(line)}});
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

QString journalBytes(const QByteArray& bytes)
{
    QString text;
    for (const char byte : bytes) {
        const auto code = static_cast<uchar>(byte);
        if (byte == '\\') {
            text += QLatin1String("\\\\");
        } else if (code >= 0x20 && code < 0x7F) {
            text += QLatin1Char(byte);
        } else {
            text += QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'));
        }
    }
    return text;
}

std::optional<QByteArray> bytesOfJournal(const QString& text)
{
    QByteArray bytes;
    for (int i = 0; i < text.size(); ++i) {
        const char character = text[i].toLatin1();
        if (character < 0x20 || character >= 0x7F) {
            return std::nullopt;
        }
        if (character != '\\') {
            bytes.append(character);
            continue;
        }
        if (text.mid(i, 2) == QLatin1String("\\\\")) {
            bytes.append('\\');
            ++i;
            continue;
        }
        bool isByte = false;
        const int code = text.mid(i + 2, 2).toInt(&isByte, 16);
        if (text.mid(i, 2) != QLatin1String("\\x") || i + 4 > text.size() || !isByte) {
            return std::nullopt;
        }
        bytes.append(static_cast<char>(code));
        i += 3;
    }
    return bytes;
}
