#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// The GPIB address of the shutter controller.
constexpr int shutterAddress = 3;

/// The three bytes that set all seven shutters at once: ESC (0x1B), the mask, LF (0x0A). Bit n of the mask is
/// set when `open[n]` is (shutter n + 1); bit 7 and the bits of missing entries are 0. Entries beyond the
/// last shutter are not looked at.
QByteArray shutterCommand(const QVector<bool>& open);

/// The states for a reader: "o" for open, "x" for closed, one letter a shutter in shutter order.
QString shutterLetters(const QVector<bool>& open);
