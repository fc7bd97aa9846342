#include "growthcheck/output/textlines.h"

#include <QTextBoundaryFinder>

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

// Breaks where the script allows it: between words, and within Japanese text.
QString wrapped(const QString& head, const QString& text, int indent)
{
    QString lines;
    QString line = padded(head, indent);
    int used = columnsOf(line);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    int from = 0;
    for (int to = finder.toNextBoundary(); to >= 0; to = finder.toNextBoundary()) {
        const QString piece = text.mid(from, to - from);
        from = to;
        const QString shown = piece.trimmed();
        if (used > indent && used + columnsOf(shown) > reportColumns) {
            lines += line.trimmed().isEmpty() ? QString() : line;
            while (lines.endsWith(QLatin1Char(' '))) {
                lines.chop(1);
            }
            lines += QLatin1Char('\n');
            line = blanks(indent);
            used = indent;
        }
        line += piece;
        used += columnsOf(piece);
    }
    lines += line;
    while (lines.endsWith(QLatin1Char(' '))) {
        lines.chop(1);
    }
    return lines + QLatin1Char('\n');
}

} // namespace GrowthCheck
