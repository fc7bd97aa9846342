#pragma once

#include <QByteArray>
#include <QVector>

/// The temperature record's waveform and text.
namespace Record {

/// The recorded value of `channel` (0 to 8) at `elapsedSec` seconds, in deg C: a sine of amplitude 50 + 10n
/// about 500 - 30n, of angular speed (1 + 0.2n) * 3.14 / 60 per second (3.14, not pi: the record's own
/// constant).
double value(int channel, double elapsedSec);

/// One line of the record: the elapsed seconds and the values, tabs between, "\n" at the end. Numbers have
/// six significant digits at the most, no trailing zeros, and an exponent where that is shorter.
QByteArray line(double elapsedSec, const QVector<double>& values);

} // namespace Record
