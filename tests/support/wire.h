#pragma once

#include <QByteArray>
#include <QList>

/// The bytes of the link, as the adapter and the instruments behind it know them: written out here once more,
/// so that a test holds the station against them. Channels and shutters count from 0.
namespace Wire {

/// What the station sends when it has connected: the adapter is set up, then all shutters are closed.
inline const QByteArray opening
    = QByteArrayLiteral("++eoi\n\n\n++auto 1\n++addr 3\n++eos 3\n++eoi\n\x1B\x00\n");
/// The change of the bus to the temperature controllers, and back to the shutters.
inline const QByteArray toTemperatures = QByteArrayLiteral("++addr 1\n++eos 0\n++eoi 1\n");
inline const QByteArray toShutters = QByteArrayLiteral("++addr 3\n++eos 3\n++eoi 0\n");

/// A shutter command with its line end; bit n of `mask` opens shutter n.
QByteArray shutters(int mask);

/// The read of a channel's temperature, with its line end.
QByteArray readRequest(int channel);

/// A set point with its check character and line end; `value` is the text between "S1" and ETX.
QByteArray setPoint(int channel, const QByteArray& value);

/// The line a controller answers a read with, without its line end: 11 characters, the value (0 deg C and
/// more) at 3 to 9.
QByteArray reading(double degC, int channel = 0);

/// A temperature that only this channel has, in deg C; its text on the panel is QString::number of it.
double ownDegC(int channel);

/// The reading of ownDegC(channel): wherever it turns up, it tells whose it is.
QByteArray ownReading(int channel);

/// Something the station sent, taken apart.
struct Message
{
    enum Kind { Read, SetPoint, Shutters, Other };

    Kind kind = Other;
    int value = 0; ///< the channel of a read or set point, the mask of a shutter command
    QByteArray bytes; ///< all of it, the line end included
};

/// Takes the whole messages off the front of `bytes`; the beginning of another one stays.
QList<Message> takeMessages(QByteArray& bytes);

} // namespace Wire
