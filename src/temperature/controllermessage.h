#pragma once

#include <QByteArray>
#include <QString>

/// The messages of the nine temperature controllers, which sit behind one GPIB device and are told apart by a
/// unit address in the message: "01" for channel 0 to "09" for channel 8.
///
/// A read request is EOT unit "M1" ENQ; a set point is EOT unit STX "S1" value ETX and a block check
/// character. An answer to a read is 11 characters of which those at 3 to 9 are the measured value.
namespace ControllerMessage {

/// The GPIB address of the device in front of the controllers.
constexpr int gpibAddress = 1;

/// Characters in an answer to a read.
constexpr int replyLength = 11;

/// What stands in the place of a reply when the controller reports an error or says nothing.
extern const QByteArray errorReply;

/// The request for the measured value of `channel`: six bytes, no block check. Nothing for a channel that
/// there is none of.
QByteArray readRequest(int channel);

/// The value in a set point's message: one decimal, rounded to nearest and exact halves to even, padded with
/// zeros to six characters, sign and point included (25 is "0025.0", -5 is "-005.0"); 10000 and more take
/// more. Always with a decimal point, whatever the locale.
QByteArray valueText(double degC);

/// The message that gives `channel` the set point `degC`, block check not yet appended; nothing for a channel
/// that there is none of.
QByteArray setPoint(int channel, double degC);

/// Appends the block check character, the exclusive-or of every byte of the NUL-terminated `message` from its
/// first on, and a new NUL. At most `size` bytes are scanned; false, and nothing written, when the buffer of
/// `size` bytes has no room for the two. A check character that happens to be 0 ends the message before it.
bool appendBlockCheck(char* message, int size);

/// Whether a received line is an answer to a read: 11 bytes, or "ER". `bytes` is the length that came with
/// it.
bool isReply(int bytes, const QByteArray& line);

/// The measured value of an accepted reply, in deg C, as the panel shows it: six significant digits at the
/// most, no trailing zeros; "----.-" for an error reply; 0 for a value that is no finite
/// number.
QString shownValue(const QByteArray& reply);

/// What the panel shows for a temperature that is not known.
QString unknownValue();

} // namespace ControllerMessage
