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

} // namespace

double scaleThatFits(double systemScale, QSize freePixels)
{
    return std::min({systemScale, freePixels.width() / neededWidth, freePixels.height() / neededHeight});
}

#ifdef Q_OS_WIN

namespace {

constexpr double usualDpi = 96.0;

QSize freePixels()
{
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return {static_cast<int>(area.right - area.left), static_cast<int>(area.bottom - area.top)};
}

} // namespace

void setUpScale()
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const double systemScale = GetDpiForSystem() / usualDpi;
    const double scale = scaleThatFits(systemScale, freePixels());
    if (scale < systemScale && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        // The toolkit multiplies the system's scale by it.
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale / systemScale));
    }
}

#else

void setUpScale() { }

#endif

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
