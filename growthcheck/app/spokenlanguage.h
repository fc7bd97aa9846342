#pragma once

#include <QString>
#include <QTranslator>

namespace GrowthCheck {

/// While it lives, the program's texts, and the toolkit's among them where it has a catalogue, are in a
/// language, "en" or "ja". An application must exist.
class SpokenLanguage
{
public:
    explicit SpokenLanguage(const QString& language);

private:
    // They take themselves out of the application.
    QTranslator translator;
    QTranslator toolkitTranslator;
};

} // namespace GrowthCheck
