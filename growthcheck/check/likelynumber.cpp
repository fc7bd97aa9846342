#include "growthcheck/check/likelynumber.h"

#include "base/compatibleform.h"
#include "base/number.h"
#include "growthcheck/check/words.h"

namespace GrowthCheck {

QString likelyNumber(const QString& text)
{
    if (text.size() > longestCompatible) {
        return {};
    }
    QString plain = compatibleForm(text).replace(QLatin1Char(','), QLatin1Char('.'));
    while (!plain.isEmpty() && !plain.back().isDigit()) {
        plain.chop(1);
    }
    return readNumber(plain) ? plain : QString();
}

QString likelyNumberHint(const QString& text)
{
    const QString likely = likelyNumber(text);
    return likely.isEmpty() || likely == text ? QString() : Words::tr(" Is it %1?").arg(shortened(likely));
}

} // namespace GrowthCheck
