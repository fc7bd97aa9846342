#include "app/language.h"

#include "base/toolkittexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <algorithm>

// The catalogue sits in a static library: without this call the linker would drop it. The macro only works
// outside of every namespace.
static void keepCatalogue()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

QVector<Language> findLanguages()
{
    keepCatalogue();
    QVector<Language> found = {
        {QStringLiteral("-j"), QStringLiteral(":Nelvo_ja_JP")},
        {QStringLiteral("-e"), QString()},
    };
    const QStringList catalogues = QDir(QStringLiteral(":/")).entryList({QStringLiteral("Nelvo_*.qm")});
    for (const QString& name : catalogues) {
        const QString catalogue = QLatin1Char(':') + name.chopped(3);
        if (catalogue != found.first().catalogue) {
            const QString code = catalogue.section(QLatin1Char('_'), 1, 1);
            found.append({QLatin1Char('-') + code, catalogue});
        }
    }
    return found;
}

} // namespace

const QVector<Language>& languages()
{
    static const QVector<Language> list = findLanguages();
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
    // The directory plays no part: the catalogue's name is a resource's.
    return translator.load(language.catalogue, QCoreApplication::applicationDirPath())
        && QCoreApplication::installTranslator(&translator);
}

bool speakInDialogs(const Language& language, QTranslator& translator)
{
    return !language.catalogue.isEmpty()
        && speakInToolkit(language.catalogue.section(QLatin1Char('_'), 1, 1), translator);
}
