#include "growthcheck/page/markup.h"

namespace GrowthCheck::Markup {

QByteArray escaped(const QString& text)
{
    QString plain = text;
    for (QChar& character : plain) {
        const bool isControl = character.unicode() < 0x20 || character.unicode() == 0x7F;
        character = isControl ? QChar(QLatin1Char(' ')) : character;
    }
    return plain.toHtmlEscaped().toUtf8();
}

QByteArray element(const char* name, const QByteArray& content, const QByteArray& attributes)
{
    QByteArray text = QByteArray("<") + name;
    if (!attributes.isEmpty()) {
        text += ' ' + attributes;
    }
    return text + '>' + content + "</" + name + '>';
}

QByteArray row(const QStringList& texts, const char* cell, const QByteArray& attributes)
{
    QByteArray cells;
    for (const QString& text : texts) {
        cells += element(cell, escaped(text));
    }
    return element("tr", cells, attributes) + '\n';
}

QByteArray number(double value)
{
    constexpr int decimals = 3;
    QByteArray text = QByteArray::number(value, 'f', decimals);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text;
}

} // namespace GrowthCheck::Markup
