#pragma once

#include <QByteArray>

/// What the nine temperature controllers understand and say.
namespace Chamber {
namespace ControllerProtocol {

/// The temperatures that fit a controller, in deg C, both ends included.
constexpr double lowestDegC = -999.9;
constexpr double highestDegC = 9999.9;

/// A message as a controller understood it.
struct Request
{
    enum class Kind { Read, SetPoint, Wrong };
    Kind kind = Kind::Wrong;
    int unit = 0; ///< 1 to 9; 0 when the message names none of them
    double degC = 0.0; ///< of a set point
    QByteArray reason; ///< why it is wrong, in a few words
};

/// Takes one message with its line end, CR LF, to pieces. EOT unit "M1" ENQ reads; EOT unit STX "S1" value
/// ETX check sets. Anything else, down to a value with two decimals, is wrong.
Request parse(const QByteArray& message);

/// Whether the block check of `message`, which goes from EOT to the check character, holds: the exclusive-or
/// of all bytes before it, the leading EOT included. `endOfText` is the position of ETX. A check character
/// of 0 may be missing, any other may not.
bool checkHolds(const QByteArray& message, int endOfText);

/// The answer to a read, 11 characters without a blank: the unit (1 to 9) in two digits, "M", the measured
/// value in seven characters padded with zeros and with one decimal, "C". A value out of range is given as
/// the nearest one in it; there is no negative zero.
QByteArray reading(int unit, double degC);

/// The answer to a set point that was taken, and the answer to a wrong message.
extern const QByteArray acknowledgement;
extern const QByteArray error;

} // namespace ControllerProtocol
} // namespace Chamber
