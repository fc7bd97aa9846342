#include "app/conditions.h"

#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextStream>

namespace {

void writeAll(QIODevice& device, const QMap<QString, QString>& conds)
{
    QTextStream stream(&device);
    for (auto entry = conds.cbegin(); entry != conds.cend(); ++entry) {
        stream << entry.key().simplified() << '\t' << entry.value().simplified() << '\n';
    }
}

} // namespace

Conditions::Conditions() = default;

void Conditions::load(const QString& fname)
{
    fileName = fname;

    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        static const QRegularExpression whiteSpace(QStringLiteral("\\s+"));
        QTextStream stream(&file);
        while (!stream.atEnd()) {
            const QStringList words = stream.readLine().simplified().split(whiteSpace);
            if (words.size() > 1) {
                conds[words[0]] = words[1];
            }
        }
        file.close();
    }

    QSaveFile compacted(fileName);
    compacted.setDirectWriteFallback(true);
    if (compacted.open(QIODevice::WriteOnly | QIODevice::Text)) {
        writeAll(compacted, conds);
        // Asked here, because commit() does not look at how its own last flush went: on a full disk it would
        // replace the file by the part that fitted.
        if (!compacted.flush()) {
            compacted.cancelWriting();
        }
        compacted.commit();
    }
}

QString Conditions::value(const QString& key)
{
    return conds[key.simplified()];
}

void Conditions::setValue(const QString& key, const QString& value)
{
    conds[key.simplified()] = value.simplified();

    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        writeAll(file, conds);
    }
}
