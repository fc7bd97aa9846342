#include "gpib/linebuffer.h"

#include <algorithm>

void LineBuffer::append(const QByteArray& bytes)
{
    // Only now, so that taking many lines does not move the rest for each of them.
    buffer.remove(0, taken);
    searched -= taken;
    taken = 0;
    buffer.append(bytes);
}

std::optional<QByteArray> LineBuffer::takeLine()
{
    const int end = buffer.indexOf('\n', searched);
    if (end < 0) {
        searched = buffer.size();
        return std::nullopt;
    }
    const int length = std::min(end + 1 - taken, longestLine);
    const QByteArray line = buffer.mid(taken, length);
    taken += length;
    // The LF itself while portions of its line are left.
    searched = std::max(taken, end);
    return line;
}

void LineBuffer::clear()
{
    buffer.clear();
    taken = 0;
    searched = 0;
}
