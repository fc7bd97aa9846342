#include "app/windowscale.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <QWindow>

#include <algorithm>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace {

// What the form has to have, in pixels at the scale 1: its width, and a chart of some height; with a frame of
// Windows.
constexpr double neededWidth = 1058 + 16;
constexpr double neededHeight = 520 + 40;

#ifdef Q_OS_WIN

constexpr double usualDpi = 96.0;

void keepWindowOnScreen()
{
    RECT work = {};
    const double systemScale = GetDpiForSystem() / usualDpi;
    if (SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0) == 0
        || qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        return;
    }
    const QSize freePixels(
        static_cast<int>(work.right - work.left), static_cast<int>(work.bottom - work.top));
    // The toolkit multiplies the system's scale by it.
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scaleThatFits(systemScale, freePixels) / systemScale));
}

#else

// Elsewhere the toolkit knows no screen before there is an application, and small screens at large scales are
// rare.
void keepWindowOnScreen() { }

#endif

} // namespace

double scaleThatFits(double systemScale, QSize freePixels)
{
    return std::min({systemScale, freePixels.width() / neededWidth, freePixels.height() / neededHeight});
}

void setUpScale()
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    keepWindowOnScreen();
}

void fitIntoFreeArea(QWidget& window)
{
    window.winId(); // so that the frame is known, where it can be
    const QMargins frame = window.windowHandle()->frameMargins();
    const QRect room = window.screen()->availableGeometry().marginsRemoved(frame);
    window.resize(window.size().boundedTo(room.size()));
    if (!frame.isNull()) {
        window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, window.size(), room));
    }
}
