#include "app/conditions.h"

#include "base/wholefile.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {

QByteArray dump(const QMap<QString, QString>& conds)
{
    QByteArray text;
    QTextStream stream(&text);
    for (auto entry = conds.cbegin(); entry != conds.cend(); ++entry) {
        stream << entry.key().simplified() << '\t' << entry.value().simplified() << '\n';
    }
    stream.flush();
    return text;
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

    saved = replaceFile(fileName, dump(conds));
}

QString Conditions::value(const QString& key)
{
    return conds[key.simplified()];
}

void Conditions::setValue(const QString& key, const QString& value)
{
    conds[key.simplified()] = value.simplified();

    saved = appendToFile(fileName, dump(conds));
}
