#pragma once

#include <QString>

namespace GrowthCheck {

/// The number that whoever wrote `text` may have meant: full-width digits, a decimal comma, a unit behind it.
/// Empty when there is none.
QString likelyNumber(const QString& text);

/// " Is it 12.5?" behind a sentence about "12,5"; empty when there is no such number, and when `text` is one.
QString likelyNumberHint(const QString& text);

} // namespace GrowthCheck
