#include "app/windowscale.h"

#include "app/language.h"

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

// A frame of Windows, both sides of it, in pixels at the scale 1.
constexpr QSize frameSize(16, 40);

} // namespace

// There is no font to measure the texts in before the scale is set: the test measures them.
QSize neededFormSize(const Language& language)
{
    constexpr int japaneseWidth = 1058;
    constexpr int longestTextsWidth = 1250;
    constexpr int height = 788;
    return {&language == &japanese() ? japaneseWidth : longestTextsWidth, height};
}

double scaleThatFits(double systemScale, QSize freePixels, QSize formSize)
{
    const QSizeF needed = formSize + frameSize;
    // A low chart can be read, if not well, and is no reason to draw all else smaller than at the scale 1.
    const double forHeight = std::max(1.0, freePixels.height() / needed.height());
    return std::min({systemScale, freePixels.width() / needed.width(), forHeight});
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

void setUpScale(const Language& language)
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const double systemScale = GetDpiForSystem() / usualDpi;
    const double scale = scaleThatFits(systemScale, freePixels(), neededFormSize(language));
    if (scale < systemScale && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        // The toolkit multiplies the system's scale by it.
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale / systemScale));
    }
}

#else

void setUpScale(const Language& /*language*/) { }

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
