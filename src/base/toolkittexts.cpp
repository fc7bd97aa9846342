#include "base/toolkittexts.h"

#include <QCoreApplication>
#include <QFileDevice>
#include <QLibraryInfo>
#include <QTranslator>

bool speakInToolkit(const QString& code, QTranslator& translator)
{
    const QString name = QStringLiteral("qtbase_") + code;
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    const bool isLoaded = translator.load(name, beside)
        || translator.load(name, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    return isLoaded && QCoreApplication::installTranslator(&translator);
}

QString errorText(const QFileDevice& file)
{
    return QCoreApplication::translate("QIODevice", file.errorString().toUtf8().constData());
}
