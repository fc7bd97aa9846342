// The station's window as it comes up: what the operator sees, and what lies in the working directory.

#include "app/formtable.h"
#include "app/mbemain.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "support/ticks.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabWidget>

#include <memory>

namespace {

constexpr int ticksOfARoundWithoutCells = 3 * 9;
const QString stateFile = QStringLiteral("NelvoCurrentStat.dat");
const QString recordFile = QStringLiteral("TemperatureRec.dat");
const char* const yellow = "background-color: rgb(255, 255, 15);";
const char* const olive = "background-color: rgb(185, 185, 105);";

QString numbered(const char* prefix, int number)
{
    return QStringLiteral("%1%2").arg(QLatin1String(prefix)).arg(number, 2, 10, QChar(u'0'));
}

QByteArray content(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray("no file");
}

void writeStateFile(const QByteArray& bytes)
{
    QFile file(stateFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write the state file");
    }
}

QByteArray noCellInUse()
{
    QByteArray text;
    for (int channel = 0; channel < 9; ++channel) {
        text += "ActiveF" + QByteArray::number(channel) + "\tInActive\n";
    }
    return text;
}

} // namespace

class MBEMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void keepsTheFormsPlaces();
    void opensOnTheTimeChartTab();
    void temperatureControlIsOn();
    void nineNamesInOrder();
    void buttonsShowTheStartingState();
    void riseRateIsLimitedAlikeForEveryChannel();
    void missingStateFileIsCreatedEmpty();
    void stateFileIsCompactedAndTakenOver();
    void pressedInUseButtonIsRememberedByTheNextStart();
    void nothingIsSavedWhenTheWindowCloses();
    void timeZeroIsTheEndOfConstruction();

private:
    template <class Widget> Widget& find(const QString& name) { return *window->findChild<Widget*>(name); }
    void build() { window = std::make_unique<MBEMain>(); }

    std::unique_ptr<DrivenClock> clock;
    std::unique_ptr<HeldTicks> held;
    std::unique_ptr<MBEMain> window;
};

void MBEMainWindow::initTestCase()
{
    qputenv("NELVO_ADAPTER", ownLoopbackAddress().toLatin1());
}

void MBEMainWindow::init()
{
    QFile::remove(stateFile);
    QFile::remove(recordFile);
    clock = std::make_unique<DrivenClock>();
    held = std::make_unique<HeldTicks>();
}

void MBEMainWindow::cleanup()
{
    window.reset();
    held.reset();
    clock.reset();
}

void MBEMainWindow::keepsTheFormsPlaces()
{
    build();
    for (const FormWidget& awaited : formWidgets()) {
        QCOMPARE(builtShape(*window, awaited), awaitedShape(awaited));
    }
}

void MBEMainWindow::opensOnTheTimeChartTab()
{
    build();
    const auto& tabs = find<QTabWidget>(QStringLiteral("tabWidget"));
    QCOMPARE(tabs.currentIndex(), 1);
    QCOMPARE(tabs.tabText(tabs.currentIndex()), QStringLiteral("Time Chart"));
}

void MBEMainWindow::temperatureControlIsOn()
{
    build();
    QVERIFY(find<QAbstractButton>(QStringLiteral("TMPCtrlActive")).isChecked());
}

void MBEMainWindow::nineNamesInOrder()
{
    build();
    const char* const names[] = {"Be", "Ga", "Si", "As4", "Al", "In", "As7", "Main Ch", "Pre Ch"};
    for (int number = 1; number <= 9; ++number) {
        QCOMPARE(find<QLabel>(numbered("CName", number)).text(), QLatin1String(names[number - 1]));
    }
    for (int number = 1; number <= 7; ++number) {
        QCOMPARE(find<QLabel>(numbered("SName", number)).text(), QLatin1String(names[number - 1]));
    }
}

void MBEMainWindow::buttonsShowTheStartingState()
{
    build();
    const auto shows = [this](const QString& name, const char* text, const char* style) {
        const auto& button = find<QAbstractButton>(name);
        return button.text() == QLatin1String(text) && button.styleSheet() == QLatin1String(style);
    };
    for (int number = 1; number <= 7; ++number) {
        QVERIFY(shows(numbered("CS", number), "Close", olive));
        QVERIFY(shows(numbered("NS", number), "Close", olive));
    }
    for (int number = 1; number <= 9; ++number) {
        QVERIFY(shows(numbered("TCActive", number), "Active", yellow));
        QVERIFY(shows(numbered("RunT", number), "Run", olive));
    }
}

void MBEMainWindow::riseRateIsLimitedAlikeForEveryChannel()
{
    build();
    for (int number = 1; number <= 9; ++number) {
        auto& run = find<QAbstractButton>(numbered("RunT", number));
        find<QLabel>(numbered("CDeg", number)).setText(QStringLiteral("100"));
        find<QLineEdit>(numbered("TDeg", number)).setText(QStringLiteral("600.1"));
        find<QLineEdit>(numbered("DTime", number)).setText(QStringLiteral("10"));
        run.click();
        QCOMPARE(run.text(), QStringLiteral("Run"));
        QCOMPARE(window->statusBar()->currentMessage(),
            QStringLiteral(
                "The temperature rise up rate should be less than 50 deg-C per min for the cell [%1:%2].")
                .arg(number - 1)
                .arg(find<QLabel>(numbered("CName", number)).text()));

        find<QLineEdit>(numbered("TDeg", number)).setText(QStringLiteral("600"));
        run.click();
        QCOMPARE(run.text(), QStringLiteral("Stop"));
    }
}

void MBEMainWindow::missingStateFileIsCreatedEmpty()
{
    build();
    QCOMPARE(content(stateFile), QByteArray());
}

void MBEMainWindow::stateFileIsCompactedAndTakenOver()
{
    writeStateFile(
        "ActiveF8 InActive\r\nActiveF3  Active more words\nActiveF3\tInActive\n\nalone\nActiveF0 other\n");
    build();
    QCOMPARE(content(stateFile), QByteArray("ActiveF0\tother\nActiveF3\tInActive\nActiveF8\tInActive\n"));
    for (int number = 1; number <= 9; ++number) {
        const bool inUse = number != 4 && number != 9;
        const auto& button = find<QAbstractButton>(numbered("TCActive", number));
        QCOMPARE(button.text(), inUse ? QStringLiteral("Active") : QStringLiteral("NotInUse"));
        QCOMPARE(button.styleSheet(), QLatin1String(inUse ? yellow : olive));
    }
}

void MBEMainWindow::pressedInUseButtonIsRememberedByTheNextStart()
{
    build();
    find<QAbstractButton>(QStringLiteral("TCActive02")).click();
    QVERIFY(content(stateFile).contains("ActiveF1\tInActive\n"));
    build();
    QCOMPARE(find<QAbstractButton>(QStringLiteral("TCActive02")).text(), QStringLiteral("NotInUse"));
    QCOMPARE(content(stateFile), QByteArray("ActiveF1\tInActive\n"));
    find<QAbstractButton>(QStringLiteral("TCActive02")).click();
    build();
    QCOMPARE(find<QAbstractButton>(QStringLiteral("TCActive02")).text(), QStringLiteral("Active"));
}

void MBEMainWindow::nothingIsSavedWhenTheWindowCloses()
{
    build();
    QVERIFY(QFile::remove(stateFile));
    window->close();
    window.reset();
    QCOMPARE(content(stateFile), QByteArray("no file"));
    QCOMPARE(content(recordFile), QByteArray("no file"));
}

// The first record of a clock that stands still since the start is that of time zero.
void MBEMainWindow::timeZeroIsTheEndOfConstruction()
{
    writeStateFile(noCellInUse());
    build();
    callSlot(window.get(), "WatchTMP", ticksOfARoundWithoutCells);
    QCOMPARE(content(recordFile), QByteArray("0\t500\t470\t440\t410\t380\t350\t320\t290\t260\n"));

    DrivenClock::advance(90500);
    callSlot(window.get(), "WatchTMP", ticksOfARoundWithoutCells);
    QVERIFY(content(recordFile).split('\n').at(1).startsWith("90.5\t"));
}

NELVO_TEST_MAIN(MBEMainWindow)

#include "mbemainwindow.moc"
