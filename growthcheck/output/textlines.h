#pragma once

#include <QString>

namespace GrowthCheck {

/// The columns that a report for a terminal takes at the most.
constexpr int reportColumns = 80;

/// How many columns of a terminal `text` takes: two for a Chinese or Japanese character.
int columnsOf(const QString& text);

/// `text` with blanks behind it up to `columns`.
QString padded(const QString& text, int columns);
/// `text` with blanks before it up to `columns`.
QString rightAligned(const QString& text, int columns);

/// `text` as lines that fit a report, each ended by LF, all but the first `indent` columns in; the first one
/// goes on behind `head`.
QString wrapped(const QString& head, const QString& text, int indent);

} // namespace GrowthCheck
