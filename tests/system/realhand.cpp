#include "system/realhand.h"

#ifdef Q_OS_WIN

#include <QVector>

#include <windows.h>

namespace {

void send(QVector<INPUT> inputs)
{
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

INPUT button(DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

INPUT key(WORD virtualKey, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.dwFlags = flags;
    return input;
}

} // namespace

void RealHand::clickAt(QPoint place)
{
    SetCursorPos(place.x(), place.y());
    send({button(MOUSEEVENTF_LEFTDOWN), button(MOUSEEVENTF_LEFTUP)});
}

void RealHand::enter(const QString& text)
{
    send({key(VK_CONTROL, 0), key('A', 0), key('A', KEYEVENTF_KEYUP), key(VK_CONTROL, KEYEVENTF_KEYUP)});
    for (const QChar character : text) {
        const auto virtualKey = static_cast<WORD>(
            character == QLatin1Char('.') ? VK_OEM_PERIOD : static_cast<int>(character.unicode()));
        send({key(virtualKey, 0), key(virtualKey, KEYEVENTF_KEYUP)});
    }
}

#else

#include <QProcess>
#include <QStringList>

namespace {

void xdotool(const QStringList& arguments)
{
    if (QProcess::execute(QStringLiteral("xdotool"), arguments) != 0) {
        qFatal("xdotool %s failed", qPrintable(arguments.join(QLatin1Char(' '))));
    }
}

} // namespace

void RealHand::clickAt(QPoint place)
{
    xdotool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
        QStringLiteral("click"), QStringLiteral("1")});
}

void RealHand::enter(const QString& text)
{
    xdotool({QStringLiteral("key"), QStringLiteral("ctrl+a"), QStringLiteral("type"), text});
}

#endif
