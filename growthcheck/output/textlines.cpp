#include "growthcheck/output/textlines.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace GrowthCheck {

namespace {

bool isWide(QChar character)
{
    const ushort code = character.unicode();
    const bool isHangulJamo = code >= 0x1100 && code <= 0x115F;
    const bool isIdeographOrKana = code >= 0x2E80 && code <= 0xA4CF;
    const bool isHangul = code >= 0xAC00 && code <= 0xD7A3;
    const bool isCompatible = code >= 0xF900 && code <= 0xFAFF;
    const bool isFullWidth = (code >= 0xFE30 && code <= 0xFE6F) || (code >= 0xFF00 && code <= 0xFF60);
    return isHangulJamo || isIdeographOrKana || isHangul || isCompatible || isFullWidth;
}

QString blanks(int count)
{
    return QString(qMax(0, count), QLatin1Char(' '));
}

QString withoutBlanksBehind(QString line)
{
    while (line.endsWith(QLatin1Char(' '))) {
        line.chop(1);
    }
    return line;
}

// What a line may be broken behind: words, and within Japanese ones wherever the script allows it. The
// toolkit's rules alone would keep numbers together that blanks part.
QStringList piecesOf(const QString& text)
{
    QStringList pieces;
    for (int from = 0; from < text.size();) {
        const int blank = text.indexOf(QLatin1Char(' '), from);
        const int end = blank < 0 ? text.size() : blank + 1;
        const QString word = text.mid(from, end - from);
        from = end;
        if (!std::any_of(word.begin(), word.end(), isWide)) {
            pieces.append(word);
            continue;
        }
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word);
        for (int start = 0, next = finder.toNextBoundary(); next >= 0; next = finder.toNextBoundary()) {
            pieces.append(word.mid(start, next - start));
            start = next;
        }
    }
    return pieces;
}

} // namespace

int columnsOf(const QString& text)
{
    int columns = 0;
    for (const QChar character : text) {
        columns += isWide(character) ? 2 : 1;
    }
    return columns;
}

QString padded(const QString& text, int columns)
{
    return text + blanks(columns - columnsOf(text));
}

QString rightAligned(const QString& text, int columns)
{
    return blanks(columns - columnsOf(text)) + text;
}

QString wrapped(const QString& head, const QString& text, int indent)
{
    QString lines;
    QString line = padded(head, indent);
    int used = columnsOf(line);
    for (const QString& piece : piecesOf(text)) {
        const int columns = columnsOf(piece);
        const int shown = piece.endsWith(QLatin1Char(' ')) ? columns - 1 : columns;
        if (used + shown > reportColumns && used > indent) {
            lines += withoutBlanksBehind(line) + QLatin1Char('\n');
            line = blanks(indent);
            used = indent;
        }
        line += piece;
        used += columns;
    }
    return lines + withoutBlanksBehind(line) + QLatin1Char('\n');
}

} // namespace GrowthCheck
