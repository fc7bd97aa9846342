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

/// A text that somebody else wrote, in quotation marks, cut to what a sentence bears; U+FFFD for each control
/// character.
QString quoted(const QString& text);

/// The same without the marks.
QString shortened(const QString& text);

} // namespace GrowthCheck
