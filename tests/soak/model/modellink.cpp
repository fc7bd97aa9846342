#include "soak/model/modellink.h"

namespace {

bool isWhite(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

QByteArray withoutSurplusBlanks(const QByteArray& line)
{
    QByteArray words;
    bool isBetween = false;
    for (const char byte : line) {
        if (isWhite(byte)) {
            isBetween = !words.isEmpty();
            continue;
        }
        if (isBetween) {
            words += ' ';
            isBetween = false;
        }
        words += byte;
    }
    return words;
}

} // namespace

void ModelLink::open()
{
    *this = ModelLink();
    isUp = true;
    send("++eoi\n");
    send("\n\n");
    send("++auto 1\n");
}

void ModelLink::cut()
{
    isUp = false;
    expected.clear();
    unfinished.clear();
}

void ModelLink::selectAddress(int number)
{
    if (number == selected || isReplyPending) {
        return;
    }
    send("++addr " + QByteArray::number(number) + '\n');
    selected = number;
}

void ModelLink::setEndOfString(int mode)
{
    if (mode == endOfString) {
        return;
    }
    send("++eos " + QByteArray::number(mode) + '\n');
    endOfString = mode;
}

// What goes out is what was set the time before.
void ModelLink::setEndOrIdentify(int mode)
{
    if (mode == endOrIdentify) {
        return;
    }
    if (endOrIdentify < 0) {
        send("++eoi\n");
    } else {
        send(endOrIdentify == 0 ? "++eoi 0\n" : "++eoi 1\n");
    }
    endOrIdentify = mode;
}

void ModelLink::sendText(const QByteArray& message)
{
    const int end = message.indexOf('\0');
    send(message.left(end < 0 ? message.size() : end) + '\n');
}

void ModelLink::sendRaw(const QByteArray& bytes)
{
    send(bytes);
}

QList<QByteArray> ModelLink::take(const QByteArray& bytes)
{
    QList<QByteArray> lines;
    unfinished += bytes;
    for (int end = unfinished.indexOf('\n'); end >= 0; end = unfinished.indexOf('\n')) {
        lines.append(withoutSurplusBlanks(unfinished.left(end)));
        unfinished.remove(0, end + 1);
        isReplyPending = false;
    }
    return lines;
}

bool ModelLink::compare(const QByteArray& bytes)
{
    if (!expected.startsWith(bytes)) {
        return false;
    }
    expected.remove(0, bytes.size());
    return true;
}

void ModelLink::send(const QByteArray& bytes)
{
    if (isUp) {
        expected += bytes;
    }
}
