#pragma once

#include <QByteArray>
#include <QVector>

namespace Chamber {

/// One line as the adapter takes it from its client: line end gone, escapes undone. Never empty, except when
/// it is overlong.
struct AdapterLine
{
    enum class Kind {
        Command, ///< for the adapter itself; `bytes` begins with "++"
        Message, ///< for the instrument at the selected address
        Overlong, ///< was longer than AdapterParser::longestLine and is dropped; `bytes` is empty
    };
    Kind kind = Kind::Message;
    QByteArray bytes;
};

/// Cuts the client's byte stream into lines. How the stream is chopped into pieces makes no difference.
///
/// LF ends a line, and a CR that is not escaped is dropped. ESC (0x1B) is dropped too and makes the byte
/// after it plain data, whatever that is. A line whose first two bytes are '+' and not escaped is a command.
/// Empty lines vanish.
class AdapterParser
{
public:
    /// The most bytes of data in one line, escapes not counted.
    static constexpr int longestLine = 1024 * 1024;

    /// The lines that `chunk` completes, in order. What is unfinished waits for the next chunk. An overlong
    /// line is reported once, as soon as it is too long; the rest of it up to its LF is skipped.
    QVector<AdapterLine> feed(const QByteArray& chunk);

    /// Forgets the unfinished line, as for a new connection.
    void reset();

private:
    void append(char byte, bool plainPlus, QVector<AdapterLine>& lines);
    void endLine(QVector<AdapterLine>& lines);

    QByteArray line;
    int leadingPluses = 0;
    bool escaped = false;
    bool skipping = false;
};

} // namespace Chamber
