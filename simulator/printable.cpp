#include "simulator/printable.h"

namespace Chamber {

QByteArray printable(const QByteArray& bytes)
{
    constexpr int longestShown = 60;
    QByteArray text;
    for (const char byte : bytes.left(longestShown)) {
        const auto code = static_cast<uchar>(byte);
        if (code < 0x20 || code >= 0x7F) {
            text += '<' + QByteArray(1, byte).toHex().toUpper() + '>';
        } else {
            text += byte;
        }
    }
    return bytes.size() > longestShown ? text + "..." : text;
}

} // namespace Chamber
