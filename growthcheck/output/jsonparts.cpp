#include "growthcheck/output/jsonparts.h"

#include "base/channels.h"

#include <QJsonDocument>

namespace GrowthCheck {

QByteArray bytesOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray membersOf(const QJsonObject& object)
{
    const QByteArray bytes = bytesOf(object);
    return bytes.mid(1, bytes.size() - 2);
}

QJsonObject jsonObject(std::initializer_list<std::pair<const char*, QJsonValue>> fields)
{
    QJsonObject object;
    for (const auto& field : fields) {
        object.insert(QLatin1String(field.first), field.second);
    }
    return object;
}

QString cellName(int channel)
{
    return QLatin1String(Channels::list[channel].name);
}

double inSeconds(qint64 ms)
{
    return static_cast<double>(ms) / 1000.0;
}

QJsonArray findingArray(const Findings& findings)
{
    QJsonArray array;
    for (const Finding& finding : findings) {
        QJsonObject object = jsonObject(
            {{"id", QLatin1String(finding.kind.id)}, {"severity", severityWord(finding.kind.severity)},
                {"text", finding.text}, {"count", finding.count}});
        if (finding.line > 0) {
            object.insert(QStringLiteral("line"), finding.line);
        }
        if (finding.step > 0) {
            object.insert(QStringLiteral("step"), finding.step);
        }
        if (finding.pass > 0) {
            object.insert(QStringLiteral("pass"), finding.pass);
        }
        if (finding.channel >= 0) {
            object.insert(QStringLiteral("cell"), cellName(finding.channel));
        }
        array.append(object);
    }
    return array;
}

} // namespace GrowthCheck
