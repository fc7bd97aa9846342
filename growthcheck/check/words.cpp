#include "growthcheck/check/words.h"

#include "base/channels.h"
#include "base/compatibleform.h"

#include <QStringList>

#include <algorithm>

namespace GrowthCheck {

namespace {

constexpr int longestQuote = 40; // characters

// What a terminal may obey instead of showing it: escape sequences, changes of the writing direction.
bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
}

QString plainName(const QString& name)
{
    return compatibleForm(name).toCaseFolded().remove(QLatin1Char(' '));
}

} // namespace

QString channelName(int channel)
{
    // The station's own words for them.
    return QCoreApplication::translate("MBEMain", Channels::list[channel].name);
}

int channelNamed(const QString& name)
{
    const QString plain = plainName(name);
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (plain == plainName(QLatin1String(Channels::list[channel].name))
            || plain == plainName(channelName(channel))) {
            return channel;
        }
    }
    return -1;
}

QString channelNames(int count)
{
    QStringList names;
    for (int channel = 0; channel < count; ++channel) {
        names.append(channelName(channel));
    }
    return names.join(QLatin1String(", "));
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
