#include "faults/wirecheck.h"

#include "support/scriptedadapter.h"

#include <algorithm>

void WireCheck::ramp(int channel, double fromDegC, double toDegC)
{
    asked.at(static_cast<size_t>(channel)) = {std::min(fromDegC, toDegC), std::max(fromDegC, toDegC)};
}

QList<Wire::Message> WireCheck::take(const QByteArray& bytes)
{
    pending += bytes;
    const QList<Wire::Message> messages = Wire::takeMessages(pending);
    for (const Wire::Message& message : messages) {
        check(message);
    }
    return messages;
}

void WireCheck::check(const Wire::Message& message)
{
    switch (message.kind) {
    case Wire::Message::Read:
        break;
    case Wire::Message::SetPoint:
        checkSetPoint(message);
        break;
    case Wire::Message::Shutters:
        ++commands;
        latestMask = message.value;
        if (message.bytes != Wire::shutters(commanded)) {
            differ(QStringLiteral("a shutter command that was not commanded"), message.bytes);
        }
        break;
    case Wire::Message::Other:
        if (message.bytes != "\n" && !message.bytes.startsWith("++")) {
            differ(QStringLiteral("not a message"), message.bytes);
        }
        break;
    }
}

void WireCheck::checkSetPoint(const Wire::Message& message)
{
    constexpr double rounding = 0.051; // one decimal goes over the wire
    ++sentSetPoints;
    const QByteArray value = message.bytes.mid(6, message.bytes.indexOf('\x03') - 6);
    bool isNumber = false;
    const double degC = value.toDouble(&isNumber);
    const Range range = asked.at(static_cast<size_t>(message.value));
    if (!isNumber || message.bytes != Wire::setPoint(message.value, value)) {
        differ(QStringLiteral("not a whole set point"), message.bytes);
    } else if (degC < range.lowest - rounding || degC > range.highest + rounding) {
        differ(QStringLiteral("a set point that was not asked for"), message.bytes);
    }
}

void WireCheck::differ(const QString& what, const QByteArray& bytes)
{
    if (difference.isEmpty()) {
        difference = what + QStringLiteral(": ") + QString::fromLatin1(readable(bytes));
    }
}
