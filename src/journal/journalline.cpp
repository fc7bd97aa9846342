#include "journal/journalline.h"

#include "base/number.h"

#include <QDateTime>
#include <QStringList>

namespace {

QString timeFormat()
{
    return QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz");
}

constexpr int dateLength = 10;
constexpr int timeLength = 23; // of a time in that format, the offset from UTC behind it
constexpr int secPerHour = 3600;

QString offsetText(int offsetSec)
{
    const int minutes = qAbs(offsetSec) / 60;
    return QString::asprintf("%c%02d:%02d", offsetSec < 0 ? '-' : '+', minutes / 60, minutes % 60);
}

QString escaped(const QString& value)
{
    QString text;
    text.reserve(value.size());
    for (const QChar character : value) {
        if (character == QLatin1Char('\\')) {
            text += QLatin1String("\\\\");
        } else if (character.unicode() < 0x20 || character.unicode() == 0x7F) {
            text += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QLatin1Char('0'));
        } else {
            text += character;
        }
    }
    return text;
}

std::optional<QString> unescaped(const QString& text)
{
    QString value;
    value.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] != QLatin1Char('\\')) {
            value += text[i];
            continue;
        }
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
        bool isCode = false;
        const int code = text.mid(i + 2, 2).toInt(&isCode, 16);
        if (next == QLatin1Char('\\')) {
            value += next;
            i += 1;
        } else if (next == QLatin1Char('x') && i + 4 <= text.size() && isCode) {
            value += QChar(code);
            i += 3;
        } else {
            return std::nullopt;
        }
    }
    return value;
}

// The time with its offset, "2026-11-21T09:41:07.123+09:00", into `line`; false when it is none.
bool readTime(const QString& text, JournalLine& line)
{
    const QDate date = QDate::fromString(text.left(dateLength), Qt::ISODate);
    const QTime time
        = QTime::fromString(text.mid(dateLength, timeLength - dateLength), QStringLiteral("THH:mm:ss.zzz"));
    const QString offset = text.mid(timeLength);
    const QTime size = QTime::fromString(offset.mid(1), QStringLiteral("HH:mm"));
    const bool hasSign = offset.startsWith(QLatin1Char('+')) || offset.startsWith(QLatin1Char('-'));
    if (!date.isValid() || !time.isValid() || !size.isValid() || !hasSign) {
        return false;
    }
    const int sizeSec = size.hour() * secPerHour + size.minute() * 60;
    line.offsetSec = offset.startsWith(QLatin1Char('-')) ? -sizeSec : sizeSec;
    // By its own offset alone: the reader's time zone may lack the hour.
    line.systemMs = QDateTime(date, time, Qt::OffsetFromUTC, line.offsetSec).toMSecsSinceEpoch();
    return true;
}

} // namespace

QString JournalLine::value(const QString& name) const
{
    for (const JournalField& field : fields) {
        if (field.name == name) {
            return field.value;
        }
    }
    return {};
}

QByteArray journalText(const JournalLine& line)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(line.systemMs, Qt::OffsetFromUTC, line.offsetSec);
    QString text = time.toString(timeFormat()) + offsetText(line.offsetSec) + QLatin1Char('\t')
        + QString::number(line.elapsedSec, 'f', 3) + QLatin1Char('\t') + line.kind;
    for (const JournalField& field : line.fields) {
        text += QLatin1Char('\t') + field.name + QLatin1Char('=') + escaped(field.value);
    }
    return text.toUtf8() + '\n';
}

std::optional<JournalLine> readJournalLine(const QByteArray& text)
{
    QString whole = QString::fromUtf8(text);
    while (whole.endsWith(QLatin1Char('\n')) || whole.endsWith(QLatin1Char('\r'))) {
        whole.chop(1);
    }
    const QStringList words = whole.split(QLatin1Char('\t'));
    JournalLine line;
    if (words.size() < 3 || words[2].isEmpty() || !readTime(words[0], line)) {
        return std::nullopt;
    }
    const std::optional<double> elapsed = readNumber(words[1]);
    if (!elapsed) {
        return std::nullopt;
    }
    line.elapsedSec = *elapsed;
    line.kind = words[2];
    for (const QString& word : words.mid(3)) {
        const int equals = word.indexOf(QLatin1Char('='));
        const std::optional<QString> value = unescaped(word.mid(equals + 1));
        if (equals <= 0 || !value) {
            return std::nullopt;
        }
        line.fields.append({word.left(equals), *value});
    }
    return line;
}
