#include "hands.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <QWidget>

namespace Hands {

namespace {

constexpr int settleMs = 30;

void xdotool(const QStringList& arguments)
{
    QProcess process;
    QEventLoop loop;
    QObject::connect(
        &process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    process.start(QStringLiteral("xdotool"), arguments);
    loop.exec();
    if (process.error() == QProcess::FailedToStart || process.exitCode() != 0) {
        qFatal("xdotool %s: %s", qPrintable(arguments.join(QLatin1Char(' '))),
            qPrintable(process.errorString()));
    }
    letWork(settleMs);
}

QStringList moveTo(QPoint global)
{
    return {QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y())};
}

QPoint middle(const QWidget& widget)
{
    return widget.mapToGlobal(widget.rect().center());
}

QStringList word(const char* verb, int button)
{
    return {QLatin1String(verb), QString::number(button)};
}

} // namespace

void click(const QWidget& widget, int button)
{
    clickAt(widget, {0, 0}, button);
}

void clickAt(const QWidget& widget, QPoint fromMiddle, int button)
{
    xdotool(moveTo(middle(widget) + fromMiddle) + word("click", button));
}

void doubleClick(const QWidget& widget)
{
    xdotool(moveTo(middle(widget)) + word("click", 1) + word("click", 1));
}

void wheel(const QWidget& widget, int notches, bool rightHeld)
{
    constexpr int up = 4;
    constexpr int down = 5;
    rest(widget);
    if (rightHeld) {
        xdotool(word("mousedown", 3));
    }
    for (int i = 0; i < qAbs(notches); ++i) {
        xdotool(word("click", notches > 0 ? up : down));
    }
    if (rightHeld) {
        xdotool(word("mouseup", 3));
    }
}

void drag(const QWidget& widget, QPoint by, int button)
{
    constexpr int steps = 8;
    const QPoint start = middle(widget);
    xdotool(moveTo(start) + word("mousedown", button));
    for (int i = 1; i <= steps; ++i) {
        xdotool(moveTo(start + by * i / steps));
    }
    xdotool(word("mouseup", button));
}

void rest(const QWidget& widget)
{
    xdotool(moveTo(middle(widget)));
}

void type(const QString& text)
{
    xdotool(
        {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("2"), QStringLiteral("--"), text});
}

void key(const QString& name)
{
    xdotool({QStringLiteral("key"), name});
}

void enter(const QWidget& entry, const QString& text)
{
    click(entry);
    key(QStringLiteral("ctrl+a"));
    type(text);
}

bool waitUntil(const std::function<bool()>& condition, int limitMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() >= limitMs) {
            return false;
        }
        letWork(10);
    }
    return true;
}

void letWork(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace Hands
