#include "growthcheck/app/spokenlanguage.h"

#include "base/toolkittexts.h"

#include <QCoreApplication>

// The catalogue sits in a static library: without this call the linker would drop it. The macro only works
// outside of every namespace.
static void keepCatalogue()
{
    Q_INIT_RESOURCE(growthchecktexts);
}

namespace GrowthCheck {

SpokenLanguage::SpokenLanguage(const QString& language)
{
    keepCatalogue();
    if (language == QLatin1String("ja")
        && translator.load(QStringLiteral(":/growthcheck/growthcheck_ja_JP.qm"))) {
        QCoreApplication::installTranslator(&translator);
        speakInToolkit(language, toolkitTranslator);
    }
}

} // namespace GrowthCheck
