#include "temperature/controllermessage.h"

#include "base/channels.h"
#include "base/number.h"

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace ControllerMessage {

namespace {

constexpr char startOfText = '\x02';
constexpr char endOfText = '\x03';
constexpr char endOfTransmission = '\x04';
constexpr char enquiry = '\x05';

constexpr int valueStart = 3;
constexpr int valueLength = 7;

QByteArray opening(int channel)
{
    QByteArray bytes;
    bytes.append(endOfTransmission).append('0').append(Channels::unitDigit(channel));
    return bytes;
}

} // namespace

const QByteArray errorReply = QByteArrayLiteral("ER");

QByteArray readRequest(int channel)
{
    if (!Channels::has(channel)) {
        return {};
    }
    return opening(channel).append("M1").append(enquiry);
}

// As printf's "%06.1f" in the C locale. printf itself would follow the machine's decimal point, and
// QString::asprintf rounds halves away from zero where printf rounds them to even (101.25 to 101.2).
QByteArray valueText(double degC)
{
    const bool isNumber = std::isfinite(degC);
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(1) << std::setw(6) << std::setfill(isNumber ? '0' : ' ')
         << (isNumber ? std::internal : std::right) << degC;
    return QByteArray::fromStdString(text.str());
}

QByteArray setPoint(int channel, double degC)
{
    if (!Channels::has(channel)) {
        return {};
    }
    return opening(channel).append(startOfText).append("S1").append(valueText(degC)).append(endOfText);
}

bool appendBlockCheck(char* message, int size)
{
    int length = 0;
    char check = 0;
    while (length < size && message[length] != '\0') {
        check = static_cast<char>(check ^ message[length]);
        ++length;
    }
    if (length >= size - 1) {
        return false;
    }
    message[length] = check;
    message[length + 1] = '\0';
    return true;
}

bool isReply(int bytes, const QByteArray& line)
{
    return bytes == replyLength || (bytes == 2 && line == errorReply);
}

QString shownValue(const QByteArray& reply)
{
    if (reply == errorReply) {
        return unknownValue();
    }
    return QString::number(readNumber(reply.mid(valueStart, valueLength)).value_or(0.0), 'g', 6);
}

QString unknownValue()
{
    return QStringLiteral("----.-");
}

} // namespace ControllerMessage
