#include "app/adapterfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {

class AdapterFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(AdapterFile)
};

const QString adapterKey = QStringLiteral("adapter");
constexpr int longestLine = 1000; // characters; what is longer is no setting

bool isHost(const QString& text)
{
    static const QRegularExpression address(
        QStringLiteral("^(25[0-5]|2[0-4]\\d|1?\\d?\\d)(\\.(25[0-5]|2[0-4]\\d|1?\\d?\\d)){3}$"));
    static const QRegularExpression name(QStringLiteral("^\\w[\\w-]{0,62}(\\.\\w[\\w-]{0,62})*$"));
    static const QRegularExpression figures(QStringLiteral("^[\\d.]*$"));
    return figures.match(text).hasMatch() ? address.match(text).hasMatch() : name.match(text).hasMatch();
}

} // namespace

QString hostMistake(const QString& place, const QString& text)
{
    return isHost(text)
        ? QString()
        : AdapterFileTexts::tr("%1: \"%2\" is no host name and no IPv4 address.").arg(place, text);
}

QString adapterFileName()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("nelvo.ini"));
}

// Stricter than the toolkit's settings, which pass over what they do not understand: a station whose line was
// passed over would command another chamber.
AdapterFile readAdapterFile(const QString& fileName)
{
    QFile file(fileName);
    if (!file.exists()) {
        return {};
    }
    const QString shownName = QDir::toNativeSeparators(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {{}, AdapterFileTexts::tr("%1 cannot be read.").arg(shownName)};
    }
    AdapterFile found;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    QString line;
    while (stream.readLineInto(&line, longestLine)) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const QString value = line.section(QLatin1Char('='), 1).trimmed();
        if (line.section(QLatin1Char('='), 0, 0).trimmed() != adapterKey || !found.host.isEmpty()) {
            return {{},
                AdapterFileTexts::tr(
                    "%1: \"%2\" is not understood. The one line there may be is \"adapter=HOST\".")
                    .arg(shownName, line)};
        }
        const QString mistake = hostMistake(shownName, value);
        if (!mistake.isEmpty()) {
            return {{}, mistake};
        }
        found.host = value;
    }
    return found;
}
