#include "support/journalevents.h"

#include "support/files.h"

#include <QFile>

QStringList journalEvents(const QStringList& left)
{
    return journalEventsOf(journalFile, left);
}

QStringList journalEventsOf(const QString& name, const QStringList& left)
{
    QStringList found;
    for (const QByteArray& text : fileText(name).split('\n')) {
        const QString event = QString::fromUtf8(text).section(u'\t', 2).replace(u'\t', u' ');
        if (!event.isEmpty() && !left.contains(event.section(u' ', 0, 0))) {
            found.append(event);
        }
    }
    QFile::remove(name);
    return found;
}
