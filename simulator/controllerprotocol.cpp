#include "simulator/controllerprotocol.h"

#include "base/channels.h"

#include <QString>

#include <cmath>

namespace Chamber {
namespace ControllerProtocol {

const QByteArray acknowledgement = QByteArrayLiteral("OK");
const QByteArray error = QByteArrayLiteral("ER");

namespace {

constexpr char startOfText = '\x02';
constexpr char endOfText = '\x03';
constexpr char endOfTransmission = '\x04';
constexpr char enquiry = '\x05';

constexpr int headLength = 3; // EOT and the unit's two digits
constexpr int textStart = 6; // behind STX "S1"
constexpr int shortestValue = 6;
constexpr int longestValue = 20;

Request wrong(int unit, const char* reason)
{
    return {Request::Kind::Wrong, unit, 0.0, QByteArray(reason)};
}

int unitOf(const QByteArray& message)
{
    if (message.size() < headLength || message[0] != endOfTransmission || message[1] != '0') {
        return 0;
    }
    const char digit = message[2];
    return Channels::has(digit - Channels::unitDigit(0)) ? digit - '0' : 0;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Just what "%06.1f" prints: a sign if negative, digits, a point and one digit, padded with zeros to six
/// characters and no further.
bool hasForm(const QByteArray& text)
{
    const int firstDigit = text.startsWith('-') ? 1 : 0;
    const int point = text.size() - 2;
    if (text.size() < shortestValue || text.size() > longestValue || text[point] != '.') {
        return false;
    }
    for (int i = firstDigit; i < text.size(); ++i) {
        if (i != point && !isDigit(text[i])) {
            return false;
        }
    }
    return text.size() == shortestValue || text[firstDigit] != '0';
}

Request parseSetPoint(const QByteArray& message, int unit)
{
    const int end = message.indexOf(endOfText, textStart);
    if (end < 0) {
        return wrong(unit, "no end of text");
    }
    if (!checkHolds(message, end)) {
        return wrong(unit, "bad check");
    }
    const QByteArray value = message.mid(textStart, end - textStart);
    if (!hasForm(value)) {
        return wrong(unit, "bad value");
    }
    Request request;
    request.degC = value.toDouble() + 0.0; // no negative zero
    if (request.degC < lowestDegC || request.degC > highestDegC) {
        return wrong(unit, "value out of range");
    }
    request.kind = Request::Kind::SetPoint;
    request.unit = unit;
    return request;
}

} // namespace

Request parse(const QByteArray& message)
{
    if (!message.endsWith("\r\n")) {
        return wrong(unitOf(message), "no line end");
    }
    const QByteArray body = message.left(message.size() - 2);
    const int unit = unitOf(body);
    if (unit == 0) {
        return wrong(unit, "no such unit");
    }
    const QByteArray rest = body.mid(headLength, textStart);
    if (rest == QByteArrayLiteral("M1") + enquiry) {
        return {Request::Kind::Read, unit, 0.0, {}};
    }
    if (rest.startsWith(startOfText + QByteArrayLiteral("S1"))) {
        return parseSetPoint(body, unit);
    }
    return wrong(unit, "not a message");
}

bool checkHolds(const QByteArray& message, int endOfTextAt)
{
    char check = 0;
    for (int i = 0; i <= endOfTextAt; ++i) {
        check = static_cast<char>(check ^ message[i]);
    }
    const QByteArray found = message.mid(endOfTextAt + 1);
    if (found.isEmpty()) {
        return check == 0;
    }
    return found.size() == 1 && found[0] == check;
}

QByteArray reading(int unit, double degC)
{
    const double inRange = qBound(lowestDegC, degC, highestDegC);
    const double rounded = std::round(inRange * 10.0) / 10.0 + 0.0;
    // asprintf writes a decimal point in every locale.
    return QString::asprintf("%02dM%07.1fC", unit, rounded).toLatin1();
}

} // namespace ControllerProtocol
} // namespace Chamber
