#include "session.h"

#include "app/mbemain.h"
#include "chart/tshowview.h"
#include "hands.h"
#include "simulatedchamber.h"

#include <QApplication>
#include <QDir>
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
constexpr int leftButton = 1;
constexpr int rightButton = 3;
constexpr auto exampleProgram = "superlattice.dat";

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
    tell(QStringLiteral("a growth program is loaded from the examples and played to its end"));
    if (!openTab(programTab)) {
        return false;
    }
    Hands::click(widget<QToolButton>("ProgLoad"));
    const QWidget* dialog = nullptr;
    const auto dialogIsUp = [&dialog] {
        for (const QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String("loadDialog") && top->isActiveWindow()) {
                dialog = top;
            }
        }
        return dialog != nullptr;
    };
    if (!expect(Hands::waitUntil(dialogIsUp, 5000), QStringLiteral("the file dialog opens"))) {
        return false;
    }
    Hands::type(QDir(exampleFolder).filePath(QLatin1String(exampleProgram)));
    Hands::key(QStringLiteral("Return"));

    const auto& total = widget<QLabel>("DispTTime02");
    Hands::click(widget<QToolButton>("ProgCheck"));
    if (!expect(Hands::waitUntil([&total] { return total.text().toDouble() > 0.0; }, 5000),
            QStringLiteral("the program is loaded and has a total time"))) {
        return false;
    }
    tell(QStringLiteral("its total time is %1 s").arg(total.text().trimmed()));

    auto& run = widget<QToolButton>("ProgRun");
    const QString idle = run.text();
    const int shuttersBefore = chamber.count(QStringLiteral("shutters "));
    Hands::click(run);
    if (!expect(
            Hands::waitUntil([&] { return run.text() != idle; }, 3000), QStringLiteral("the program runs"))) {
        return false;
    }
    const int limitMs = static_cast<int>(total.text().toDouble() * 1000.0) + 5000;
    if (!expect(Hands::waitUntil([&] { return run.text() == idle; }, limitMs),
            QStringLiteral("the program comes to its end"))) {
        return false;
    }
    return expect(chamber.count(QStringLiteral("shutters ")) > shuttersBefore,
        QStringLiteral("the chamber sees the program's shutters"));
}

bool Session::workChart()
{
    tell(QStringLiteral("the chart is magnified with the wheel and dragged with both buttons"));
    if (!openTab(chartTab)) {
        return false;
    }
    const auto& chart = widget<TShowView>("TSView");
    const auto view = [&chart] { return chart.chartView(); };
    const ChartView before = view();
    Hands::wheel(chart, 15);
    Hands::wheel(chart, 3, true);
    if (!expect(view().xSpan < before.xSpan / 3.0 && view().ySpan < before.ySpan * 0.8,
            QStringLiteral("the wheel magnifies time and temperature"))) {
        return false;
    }
    Hands::drag(chart, {chart.width() / 4, 0}, leftButton);
    Hands::drag(chart, {0, chart.height() / 8}, rightButton);
    if (!expect(view().xOffset > 0.0 && view().yOffset != before.yOffset,
            QStringLiteral("dragging shifts time and temperature"))
        || !picture(QStringLiteral("chart-magnified-ja"))) {
        return false;
    }
    Hands::doubleClick(chart);
    return expect(view().xSpan == before.xSpan && view().xOffset == 0.0,
        QStringLiteral("a double click brings the first view back"));
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
