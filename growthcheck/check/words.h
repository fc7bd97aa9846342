#pragma once

#include <QCoreApplication>

namespace GrowthCheck {

/// The texts of growthcheck in the language of the user: Words::tr("...").
class Words
{
    Q_DECLARE_TR_FUNCTIONS(Words)
};

/// A channel's name in that language.
QString channelName(int channel);

/// The channel that is called `name` in that language or in English, in whatever case, width and with
/// whatever blanks; -1 when there is none.
int channelNamed(const QString& name);

/// The names of the first `count` channels in that language, as a list.
QString channelNames(int count);

/// A text that somebody else wrote, in quotation marks, cut to what a sentence bears; U+FFFD for each control
/// character.
QString quoted(const QString& text);

/// The same without the marks.
QString shortened(const QString& text);

} // namespace GrowthCheck
