#pragma once

#include <QDateTime>
#include <QString>

namespace GrowthCheck {

/// A length of time for a reader: "0:03:07.01", from a day on "2 d 4:03:07.01".
QString elapsedText(qint64 ms);

/// `elapsedText` with the operator's waits that come on top: "0:03:07.01 + operator".
QString elapsedText(qint64 ms, qint64 holds);

/// The time of day `ms` after `start`: "06:13:07", on another day with its date in front. Empty when `start`
/// is not valid.
QString clockText(const QDateTime& start, qint64 ms);

/// The same for the end of something: "tomorrow, 06:13:07".
QString endText(const QDateTime& start, qint64 ms);

/// A length of time as the station shows it, in seconds with one decimal; in six digits where nobody reads
/// more of them. `sec` may be infinite: a sum that is too large for any number.
QString totalText(double sec);

/// Seconds with three decimals, for programs.
QString secondsText(qint64 ms);

} // namespace GrowthCheck
