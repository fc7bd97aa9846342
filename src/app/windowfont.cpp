#include "app/windowfont.h"

#include "app/language.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QLocale>

QString japaneseFamily(const QStringList& families)
{
    // Yu Gothic UI first: its lines are lower than Meiryo's, which leaves the chart's fitted labels larger.
    for (const char* family : {"Yu Gothic UI", "Meiryo UI", "MS UI Gothic"}) {
        if (families.contains(QLatin1String(family))) {
            return QLatin1String(family);
        }
    }
    return {};
}

#ifdef Q_OS_WIN

void useFontFor(const Language& language)
{
    QFont font = QApplication::font("QMessageBox");
    const bool systemIsJapanese = QLocale::system().uiLanguages().value(0).startsWith(QLatin1String("ja"));
    if (&language == &japanese() && !systemIsJapanese) {
        const QString family = japaneseFamily(QFontDatabase().families());
        if (!family.isEmpty()) {
            font.setFamily(family);
        }
    }
    QApplication::setFont(font);
}

#else

void useFontFor(const Language& /*language*/) { }

#endif
