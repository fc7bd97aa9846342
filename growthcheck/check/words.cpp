#include "growthcheck/check/words.h"

#include "base/channels.h"

namespace GrowthCheck {

namespace {

constexpr int longestQuote = 40; // characters

}

QString channelName(int channel)
{
    // The station's own words for them.
    return QCoreApplication::translate("MBEMain", Channels::list[channel].name);
}

QString shortened(const QString& text)
{
    return text.size() > longestQuote ? text.left(longestQuote) + QChar(0x2026) : text;
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') + shortened(text) + QLatin1Char('"');
}

} // namespace GrowthCheck
