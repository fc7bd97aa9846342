#include "simulator/adapterparser.h"

namespace Chamber {

namespace {

constexpr char escape = '\x1B';

} // namespace

QVector<AdapterLine> AdapterParser::feed(const QByteArray& chunk)
{
    QVector<AdapterLine> lines;
    for (const char byte : chunk) {
        if (escaped) {
            escaped = false;
            append(byte, false, lines);
        } else if (byte == escape) {
            escaped = true;
        } else if (byte == '\n') {
            endLine(lines);
        } else if (byte != '\r') {
            append(byte, byte == '+', lines);
        }
    }
    return lines;
}

void AdapterParser::reset()
{
    *this = AdapterParser();
}

void AdapterParser::append(char byte, bool plainPlus, QVector<AdapterLine>& lines)
{
    if (skipping) {
        return;
    }
    if (line.size() == longestLine) {
        line.clear();
        skipping = true;
        lines.append({AdapterLine::Kind::Overlong, {}});
        return;
    }
    if (plainPlus && line.size() == leadingPluses) {
        ++leadingPluses;
    }
    line.append(byte);
}

void AdapterParser::endLine(QVector<AdapterLine>& lines)
{
    if (!line.isEmpty()) {
        const bool isCommand = leadingPluses >= 2;
        lines.append({isCommand ? AdapterLine::Kind::Command : AdapterLine::Kind::Message, line});
    }
    reset();
}

} // namespace Chamber
