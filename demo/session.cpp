#include "session.h"

#include "app/mbemain.h"
#include "hands.h"
#include "simulatedchamber.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <cstdio>

namespace {

constexpr int programTab = 0;
constexpr int chartTab = 1;

void tell(const QString& what)
{
    std::printf("== %s\n", qPrintable(what));
    std::fflush(stdout);
}

} // namespace

Session::Session(MBEMain& stationWindow, SimulatedChamber& simulatedChamber, const QString& pictures,
    const QString& examples)
    : window(stationWindow)
    , chamber(simulatedChamber)
    , pictureFolder(pictures)
    , exampleFolder(examples)
{
}

bool Session::play()
{
    return awaitLink() && workShutters() && rampCell() && playProgram() && workChart();
}

bool Session::awaitLink()
{
    tell(QStringLiteral(
        "the window opens; it connects, closes all shutters and starts to read nine temperatures"));
    const auto& last = widget<QLabel>("CDeg09");
    return awaitEvent(QStringLiteral("connected"), 1, 5000)
        && awaitEvent(QStringLiteral("shutters xxxxxxx"), 1, 5000)
        && expect(Hands::waitUntil([&last] { return qAbs(last.text().toDouble() - 25.0) < 2.0; }, 5000),
            QStringLiteral("the last channel shows about 25 deg C"));
}

bool Session::workShutters()
{
    tell(QStringLiteral("shutters 1 and 4 are prepared, then changed to"));
    Hands::click(widget<QToolButton>("NS01"));
    Hands::click(widget<QToolButton>("NS04"));
    Hands::click(widget<QPushButton>("ChangeShutterB"));
    if (!awaitEvent(QStringLiteral("shutters oxxoxxx"), 1, 3000)) {
        return false;
    }
    tell(QStringLiteral(
        "shutter 2 is opened by itself, then all are closed, then the prepared ones open again"));
    Hands::click(widget<QToolButton>("CS02"));
    if (!awaitEvent(QStringLiteral("shutters ooxoxxx"), 1, 3000)) {
        return false;
    }
    const int closedBefore = chamber.count(QStringLiteral("shutters xxxxxxx"));
    Hands::click(widget<QPushButton>("AllCloseB"));
    if (!awaitEvent(QStringLiteral("shutters xxxxxxx"), closedBefore + 1, 3000)) {
        return false;
    }
    Hands::click(widget<QPushButton>("ChangeShutterB"));
    return awaitEvent(QStringLiteral("shutters oxxoxxx"), 2, 3000);
}

bool Session::rampCell()
{
    tell(QStringLiteral(
        "cell 2 is ramped to 95 deg C in two minutes; the first minute's set point goes out at once"));
    Hands::enter(widget<QLineEdit>("TDeg02"), QStringLiteral("95"));
    Hands::enter(widget<QLineEdit>("DTime02"), QStringLiteral("2"));
    Hands::click(widget<QToolButton>("RunT02"));
    if (!awaitEvent(QStringLiteral("setpoint 02 "), 1, 5000)) {
        return false;
    }
    const auto& current = widget<QLabel>("CDeg02");
    return expect(Hands::waitUntil([&current] { return current.text().toDouble() > 27.0; }, 20000),
        QStringLiteral("the cell warms up in the window"));
}

bool Session::playProgram()
{
    return true;
}

bool Session::workChart()
{
    return true;
}

bool Session::takePictures(const QString& language)
{
    tell(QStringLiteral("a picture of each tab in language \"%1\"").arg(language));
    const auto& last = widget<QLabel>("CDeg09");
    if (!expect(Hands::waitUntil([&last] { return last.text().toDouble() > 0.0; }, 5000),
            QStringLiteral("temperatures are read"))) {
        return false;
    }
    return openTab(programTab) && picture(QStringLiteral("program-") + language) && openTab(chartTab)
        && picture(QStringLiteral("chart-") + language);
}

bool Session::openTab(int index)
{
    auto& tabs = widget<QTabWidget>("tabWidget");
    const QTabBar& bar = *tabs.tabBar();
    const QPoint offset = bar.tabRect(index).center() - bar.rect().center();
    Hands::clickAt(bar, offset);
    return expect(Hands::waitUntil([&tabs, index] { return tabs.currentIndex() == index; }, 3000),
        QStringLiteral("tab %1 opens").arg(index));
}

bool Session::expect(bool happened, const QString& what)
{
    if (!happened) {
        reason = QStringLiteral("it did not happen that ") + what;
    }
    return happened;
}

bool Session::awaitEvent(const QString& event, int times, int limitMs)
{
    return expect(Hands::waitUntil([&] { return chamber.count(event) >= times; }, limitMs),
        QStringLiteral("the chamber logs \"%1\" (%2)").arg(event).arg(times));
}

bool Session::picture(const QString& name)
{
    // The pointer off the window and a moment for the last repaint.
    Hands::letWork(300);
    const QString file = QDir(pictureFolder).filePath(name + QStringLiteral(".png"));
    const QPixmap pixels = QGuiApplication::primaryScreen()->grabWindow(window.winId());
    if (!expect(!pixels.isNull() && pixels.save(file), QStringLiteral("the picture %1 is saved").arg(file))) {
        return false;
    }
    tell(QStringLiteral("saved %1").arg(file));
    return true;
}

template <class Widget> Widget& Session::widget(const char* name) const
{
    auto* found = window.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) {
        qFatal("the window has no %s", name);
    }
    return *found;
}
