#include "growthcheck/support/programtext.h"

#include "base/channels.h"
#include "support/testtext.h"

#include <QMap>

using namespace TestText;

namespace {

QString nameOf(int channel)
{
    return QString::fromLatin1(Channels::list[channel].name).remove(u' ');
}

QString lineOf(const QString& description, int number)
{
    if (description.startsWith(u'|')) {
        return description.mid(1);
    }
    QMap<QString, QString> values;
    for (const QString& word : description.split(u' ', Qt::SkipEmptyParts)) {
        values[word.section(u'=', 0, 0)] = word.section(u'=', 1);
    }
    QStringList fields{values.take("n"_s)};
    if (fields[0].isEmpty()) {
        fields[0] = QString::number(number);
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        const QString text = values.take(nameOf(channel));
        fields.append(text.isEmpty() ? "0"_s : text);
    }
    const QStringList open = values.take("open"_s).split(u',');
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        fields.append(open.contains(nameOf(shutter)) ? "1"_s : "0"_s);
    }
    const QString group = values.take("g"_s);
    const QString times = values.take("x"_s);
    fields
        += {values.take("t"_s), group.isEmpty() ? "---NoGroup---"_s : group, times.isEmpty() ? "1"_s : times};
    if (!values.isEmpty()) {
        qFatal("a step has no \"%s\"", qPrintable(values.firstKey()));
    }
    return fields.join(u'\t');
}

} // namespace

QByteArray programText(const QStringList& descriptions)
{
    QString text;
    for (int number = 0; number < descriptions.size(); ++number) {
        text += lineOf(descriptions[number], number) + u'\n';
    }
    return text.toLocal8Bit();
}

bool canBeWritten(const QString& text)
{
    return QString::fromLocal8Bit(text.toLocal8Bit()) == text;
}
