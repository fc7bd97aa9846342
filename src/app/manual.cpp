#include "app/manual.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

// A page for each part, and not an anchor behind the name of one: on its way to the browser a system may lose
// that.
QString manualPage(const QString& language, const QString& part)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char* folder : {"manual", NELVO_INSTALLED_MANUAL}) {
        const QString name
            = programs.filePath(QStringLiteral("%1/%2-%3.html").arg(QLatin1String(folder), language, part));
        if (QFileInfo(name).isFile()) {
            return QDir::cleanPath(name);
        }
    }
    return {};
}
