#include "app/language.h"

#include <QTranslator>

// The catalogue sits in a static library: without this call the linker would drop it. The macro only works
// outside of every namespace.
static void keepCatalogue()
{
    Q_INIT_RESOURCE(translations);
}

Language chooseLanguage(const QStringList& arguments)
{
    if (arguments.isEmpty()) {
        return Language::Japanese;
    }
    Language language = Language::Japanese;
    for (const QString& argument : arguments.mid(1)) {
        if (argument == QLatin1String("-j")) {
            language = Language::Japanese;
        } else if (argument == QLatin1String("-e")) {
            language = Language::English;
        }
    }
    if (arguments.first().contains(QLatin1String("Nelvoe"))) {
        language = Language::English;
    }
    return language;
}

bool loadJapanese(QTranslator& translator, const QString& applicationDirectory)
{
    keepCatalogue();
    return translator.load(QStringLiteral(":Nelvo_ja_JP"), applicationDirectory);
}
