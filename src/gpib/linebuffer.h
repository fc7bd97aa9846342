#pragma once

#include <QByteArray>

#include <optional>

/// Bytes on their way from a stream to lines. Every byte is looked at once, however it comes in: a flood of
/// short lines or a line of a hundred megabytes costs by its length alone.
class LineBuffer
{
public:
    /// Lines longer than `longest` bytes, their LF counted, are given in portions of so many bytes.
    explicit LineBuffer(int longest)
        : longestLine(longest)
    {
    }

    void append(const QByteArray& bytes);

    /// The next complete line with its LF, or the next portion of one; nothing while the LF is missing.
    std::optional<QByteArray> takeLine();

    /// Bytes that have not been taken.
    int size() const { return buffer.size() - taken; }
    void clear();

private:
    int longestLine;
    QByteArray buffer;
    int taken = 0; // bytes at the front that are done with
    int searched = 0; // up to here there is no LF
};
