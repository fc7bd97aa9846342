#pragma once

#include <QString>

#include <optional>

/// The number that `text` says: decimal point and exponent as in C, blanks around it tolerated. Nothing for a
/// text that is no number, and for "inf", "nan" and what is too large: no clock or instrument could make
/// anything of them.
std::optional<double> readNumber(const QString& text);
