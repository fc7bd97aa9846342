#include "journal/journalline.h"

#include "base/number.h"

#include <QDateTime>
#include <QStringList>

namespace {

const QString timeFormat = QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz");
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
        switch (character.unicode()) {
        case '\\':
            text += QLatin1String("\\\\");
            break;
        case '\t':
            text += QLatin1String("\\t");
            break;
        case '\n':
            text += QLatin1String("\\n");
            break;
        case '\r':
            text += QLatin1String("\\r");
            break;
        default:
            text += character;
        }
    }
    return text;
}

QString unescaped(const QString& text)
{
    QString value;
    value.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == QLatin1Char('\\') && i + 1 < text.size();
        if (!isEscape) {
            value += text[i];
            continue;
        }
        ++i;
        switch (text[i].unicode()) {
        case 't':
            value += QLatin1Char('\t');
            break;
        case 'n':
            value += QLatin1Char('\n');
            break;
        case 'r':
            value += QLatin1Char('\r');
            break;
        default:
            value += text[i];
        }
    }
    return value;
}

// The time with its offset, "2026-11-21T09:41:07.123+09:00", into `line`; false when it is none.
bool readTime(const QString& text, JournalLine& line)
{
    QDateTime time = QDateTime::fromString(text.left(timeLength), timeFormat);
    const QString offset = text.mid(timeLength);
    const QTime size = QTime::fromString(offset.mid(1), QStringLiteral("HH:mm"));
    const bool hasSign = offset.startsWith(QLatin1Char('+')) || offset.startsWith(QLatin1Char('-'));
    if (!time.isValid() || !size.isValid() || !hasSign) {
        return false;
    }
    const int sizeSec = size.hour() * secPerHour + size.minute() * 60;
    line.offsetSec = offset.startsWith(QLatin1Char('-')) ? -sizeSec : sizeSec;
    time.setOffsetFromUtc(line.offsetSec);
    line.systemMs = time.toMSecsSinceEpoch();
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
    QString text = time.toString(timeFormat) + offsetText(line.offsetSec) + QLatin1Char('\t')
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
        if (equals <= 0) {
            return std::nullopt;
        }
        line.fields.append({word.left(equals), unescaped(word.mid(equals + 1))});
    }
    return line;
}
