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

// Control characters, and what some editors and readers take for a line end.
bool isControl(ushort code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029;
}

// Two digits, or four where two are not enough.
QString codeText(ushort code)
{
    return code <= 0xFF ? QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'))
                        : QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
}

QString escaped(const QString& value)
{
    QString text;
    text.reserve(value.size());
    for (const QChar character : value) {
        if (character == QLatin1Char('\\')) {
            text += QLatin1String("\\\\");
        } else if (isControl(character.unicode())) {
            text += codeText(character.unicode());
        } else {
            text += character;
        }
    }
    return text;
}

// The character that `digits` hexadecimal digits at `from` are the number of.
std::optional<QChar> codeAt(const QString& text, int from, int digits)
{
    bool isNumber = false;
    const uint code = text.mid(from, digits).toUInt(&isNumber, 16);
    if (!isNumber || from + digits > text.size()) {
        return std::nullopt;
    }
    return QChar(code);
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
        if (next == QLatin1Char('\\')) {
            value += next;
            i += 1;
            continue;
        }
        const int digits = next == QLatin1Char('x') ? 2 : 4;
        const std::optional<QChar> code = codeAt(text, i + 2, digits);
        // Four digits are for what is written so, and never for half a character.
        const bool isKnown
            = next == QLatin1Char('x') || (next == QLatin1Char('u') && code && isControl(code->unicode()));
        if (!code || !isKnown) {
            return std::nullopt;
        }
        value += *code;
        i += 1 + digits;
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
