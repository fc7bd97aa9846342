#include "app/language.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>

// The catalogue sits in a static library: without this call the linker would drop it. The macro only works
// outside of every namespace.
static void keepCatalogue()
{
    Q_INIT_RESOURCE(translations);
}

const QVector<Language>& languages()
{
    static const QVector<Language> list = {
        {QStringLiteral("-j"), QStringLiteral(":Nelvo_ja_JP")},
        {QStringLiteral("-e"), QString()},
    };
    return list;
}

const Language& japanese()
{
    return languages()[0];
}

const Language& english()
{
    return languages()[1];
}

const Language& chooseLanguage(const QStringList& arguments)
{
    if (arguments.isEmpty()) {
        return japanese();
    }
    if (arguments.first().contains(QLatin1String("Nelvoe"))) {
        return english();
    }
    const Language* chosen = &japanese();
    for (const QString& argument : arguments.mid(1)) {
        const auto named = std::find_if(languages().begin(), languages().end(),
            [&argument](const Language& language) { return language.argument == argument; });
        if (named != languages().end()) {
            chosen = &*named;
        }
    }
    return *chosen;
}

bool speak(const Language& language, QTranslator& translator)
{
    if (language.catalogue.isEmpty()) {
        return false;
    }
    keepCatalogue();
    // The directory plays no part: the catalogue's name is a resource's.
    return translator.load(language.catalogue, QCoreApplication::applicationDirPath())
        && QCoreApplication::installTranslator(&translator);
}
