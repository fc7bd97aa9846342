#include "support/wire.h"

namespace {

constexpr char stx = '\x02';
constexpr char etx = '\x03';
constexpr char eot = '\x04';
constexpr char enq = '\x05';
constexpr char escape = '\x1B';

char unitDigit(int channel)
{
    return static_cast<char>('1' + channel);
}

QByteArray toController(int channel, const QByteArray& rest)
{
    return QByteArray(1, eot) + '0' + unitDigit(channel) + rest;
}

bool isSetPoint(const QByteArray& bytes)
{
    return bytes.size() > 3 && bytes[0] == eot && bytes[3] == stx;
}

// Where the line end of the first message in `bytes` stands, -1 when it is not there yet. A mask and a check
// character may be any byte, a line feed too.
int endOfMessage(const QByteArray& bytes)
{
    if (bytes.startsWith(escape)) {
        return bytes.size() > 2 ? 2 : -1;
    }
    if (isSetPoint(bytes)) {
        const int end = bytes.indexOf(etx);
        return end < 0 ? -1 : bytes.indexOf('\n', end + 2);
    }
    return bytes.indexOf('\n');
}

} // namespace

namespace Wire {

QByteArray shutters(int mask)
{
    return QByteArray(1, escape) + static_cast<char>(mask) + '\n';
}

QByteArray readRequest(int channel)
{
    return toController(channel, "M1\x05\n");
}

QByteArray setPoint(int channel, const QByteArray& value)
{
    const QByteArray message = toController(channel, "\x02S1" + value + etx);
    char check = 0;
    for (const char byte : message) {
        check = static_cast<char>(check ^ byte);
    }
    return message + check + '\n';
}

QByteArray reading(double degC, int channel)
{
    // No two blanks in a row: the link would make them one, and the line one short.
    return QByteArray("0") + unitDigit(channel) + 'M'
        + QByteArray::number(degC, 'f', 2).rightJustified(7, '0') + 'E';
}

double ownDegC(int channel)
{
    return 100.25 + 111 * channel;
}

QByteArray ownReading(int channel)
{
    return reading(ownDegC(channel), channel);
}

QList<Message> takeMessages(QByteArray& bytes)
{
    QList<Message> messages;
    for (int end = endOfMessage(bytes); end >= 0; end = endOfMessage(bytes)) {
        Message message;
        message.bytes = bytes.left(end + 1);
        bytes.remove(0, end + 1);
        if (message.bytes.startsWith(escape)) {
            message.kind = Message::Shutters;
            message.value = static_cast<uchar>(message.bytes[1]);
        } else if (isSetPoint(message.bytes)) {
            message.kind = Message::SetPoint;
            message.value = message.bytes[2] - unitDigit(0);
        } else if (message.bytes.size() == 7 && message.bytes[0] == eot && message.bytes[5] == enq) {
            message.kind = Message::Read;
            message.value = message.bytes[2] - unitDigit(0);
        }
        messages.append(message);
    }
    return messages;
}

} // namespace Wire
