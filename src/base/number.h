#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The number that a text says: decimal point and exponent as in C, blanks around it tolerated. Nothing for a
/// text that is no number, and for "inf", "nan" and what is too large: no clock or instrument could make
/// anything of them. Every entry, table row, file field and reading is understood by this alone.
std::optional<double> readNumber(const QString& text);
std::optional<double> readNumber(const QByteArray& text);
