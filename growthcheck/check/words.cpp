#include "growthcheck/check/words.h"

#include "base/channels.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

constexpr int longestQuote = 40; // characters

// What a terminal may obey instead of showing it: escape sequences, changes of the writing direction.
bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
}

} // namespace

QString channelName(int channel)
{
    // The station's own words for them.
    return QCoreApplication::translate("MBEMain", Channels::list[channel].name);
}

QString shortened(const QString& text)
{
    QString shown = text.size() > longestQuote ? text.left(longestQuote) + QChar(0x2026) : text;
    std::replace_if(shown.begin(), shown.end(), &isControl, QChar(QChar::ReplacementCharacter));
    return shown;
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') + shortened(text) + QLatin1Char('"');
}

} // namespace GrowthCheck
