#include "shutter/shuttercommand.h"

#include "base/channels.h"

#include <QtGlobal>

namespace {

static_assert(Channels::shutterCount <= 7, "the mask has seven bits for shutters, its eighth is always 0");

constexpr char escape = '\x1B';

} // namespace

QByteArray shutterCommand(const QVector<bool>& open)
{
    int mask = 0;
    for (int n = 0; n < qMin(open.size(), Channels::shutterCount); ++n) {
        if (open[n]) {
            mask |= 1 << n;
        }
    }
    QByteArray command;
    command.append(escape).append(static_cast<char>(mask)).append('\n');
    return command;
}

QString shutterLetters(const QVector<bool>& open)
{
    QString letters;
    for (const bool isOpen : open) {
        letters.append(QLatin1Char(isOpen ? 'o' : 'x'));
    }
    return letters;
}
