#pragma once

#include <QString>
#include <QTranslator>

namespace GrowthCheck {

/// While it lives, the program's texts are in a language, "en" or "ja". An application must exist.
class SpokenLanguage
{
public:
    explicit SpokenLanguage(const QString& language);

private:
    QTranslator translator; // takes itself out of the application
};

} // namespace GrowthCheck
