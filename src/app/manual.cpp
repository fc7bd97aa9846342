#include "app/manual.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString manualFile(const QString& language)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char* folder : {"manual", NELVO_INSTALLED_MANUAL}) {
        const QString name
            = programs.filePath(QLatin1String(folder) + QStringLiteral("/%1.html").arg(language));
        if (QFileInfo(name).isFile()) {
            return QDir::cleanPath(name);
        }
    }
    return {};
}

QUrl manualPart(const QString& language, const QString& part)
{
    const QString name = manualFile(language);
    if (name.isEmpty()) {
        return {};
    }
    QUrl page = QUrl::fromLocalFile(name);
    page.setFragment(part);
    return page;
}
