// The station's window as it comes up: what the operator sees, and what lies in the working directory.

#include "app/formtable.h"
#include "chart/tshowview.h"
#include "support/files.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QAbstractButton>
#include <QFile>
#include <QTabWidget>

using namespace TestText;

namespace {

// Building the window takes time, the program's table most of it.
class TimePassesWhileTheTableIsMade : public QObject
{
public:
    TimePassesWhileTheTableIsMade() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* parent, QEvent* event) override
    {
        // A row's entry comes into its cell, which has no name.
        if (event->type() == QEvent::ChildAdded && parent->isWidgetType() && parent->objectName().isEmpty()) {
            DrivenClock::advance(1);
        }
        return false;
    }
};

} // namespace

class MBEMainWindowTest : public StationTest
{
    Q_OBJECT

private slots:
    void keepsTheFormsPlaces()
    {
        QVERIFY(station->open());
        for (const FormWidget& awaited : formWidgets()) {
            QCOMPARE(builtShape(station->window(), awaited), awaitedShape(awaited));
        }
    }

    void opensOnTheTimeChartTab()
    {
        QVERIFY(station->open());
        const auto& tabs = station->find<QTabWidget>("tabWidget"_s);
        QCOMPARE(tabs.currentIndex(), 1);
        QCOMPARE(tabs.tabText(tabs.currentIndex()), "Time Chart"_s);
    }

    void temperatureControlIsOn()
    {
        QVERIFY(station->open());
        QVERIFY(station->find<QAbstractButton>("TMPCtrlActive"_s).isChecked());
    }

    void nineNamesInOrder()
    {
        QVERIFY(station->open());
        const char* const names[] = {"Be", "Ga", "Si", "As4", "Al", "In", "As7", "Main Ch", "Pre Ch"};
        for (int number = 0; number < Channels::count; ++number) {
            QCOMPARE(station->text(cell("CName", number)), QLatin1String(names[number]));
        }
        for (int number = 0; number < Channels::shutterCount; ++number) {
            QCOMPARE(station->text(cell("SName", number)), QLatin1String(names[number]));
        }
    }

    void buttonsShowTheStartingState()
    {
        QVERIFY(station->open());
        QCOMPARE(station->states("CS", "Open"_s, "Close"_s), "xxxxxxx"_s);
        QCOMPARE(station->states("NS", "Open"_s, "Close"_s), "xxxxxxx"_s);
        QCOMPARE(station->states("TCActive", "Active"_s, "NotInUse"_s), "ooooooooo"_s);
        QCOMPARE(station->states("RunT", "Stop"_s, "Run"_s), "xxxxxxxxx"_s);
    }

    void riseRateIsLimitedAlikeForEveryChannel()
    {
        QVERIFY(station->open());
        for (int channel = 0; channel < Channels::count; ++channel) {
            station->find<QLabel>(cell("CDeg", channel)).setText("100"_s);
            station->pressRun(channel, "600.1"_s, "10"_s);
            QVERIFY(!station->isRamping(channel));
            QCOMPARE(station->statusBar(),
                "The temperature rise up rate should be less than 50 deg-C per min for the cell [%1:%2]."_s
                    .arg(channel)
                    .arg(station->text(cell("CName", channel))));

            station->pressRun(channel, "600"_s, "10"_s);
            QVERIFY(station->isRamping(channel));
        }
    }

    void missingStateFileIsCreatedEmpty()
    {
        QVERIFY(station->open());
        QCOMPARE(fileText(stateFile), QByteArray());
    }

    void stateFileIsCompactedAndTakenOver()
    {
        putFile(stateFile,
            "ActiveF8 InActive\r\nActiveF3  Active more "
            "words\nActiveF3\tInActive\n\nalone\nActiveF0 other\n");
        QVERIFY(station->open());
        QCOMPARE(
            fileText(stateFile), QByteArray("ActiveF0\tother\nActiveF3\tInActive\nActiveF8\tInActive\n"));
        QCOMPARE(station->states("TCActive", "Active"_s, "NotInUse"_s), "oooxoooox"_s);
    }

    void pressedInUseButtonIsRememberedByTheNextStart()
    {
        QVERIFY(station->open());
        station->click(cell("TCActive", 1));
        QVERIFY(fileText(stateFile).contains("ActiveF1\tInActive\n"));
        station->close();
        QVERIFY(station->open());
        QCOMPARE(station->text(cell("TCActive", 1)), "NotInUse"_s);
        QCOMPARE(fileText(stateFile), QByteArray("ActiveF1\tInActive\n"));
        station->click(cell("TCActive", 1));
        station->close();
        QVERIFY(station->open());
        QCOMPARE(station->text(cell("TCActive", 1)), "Active"_s);
    }

    void nothingIsSavedWhenTheWindowCloses()
    {
        QVERIFY(station->open());
        QVERIFY(QFile::remove(stateFile));
        station->window().close();
        station->close();
        QCOMPARE(fileText(stateFile), QByteArray("(no file)"));
        QCOMPARE(fileText(recordFile), QByteArray("(no file)"));
    }

    // The first record of a clock that stands still since the start is that of time zero.
    void timeZeroIsTheEndOfConstruction()
    {
        Station::storeInUse({});
        const qint64 before = DrivenClock::nowMs();
        {
            const TimePassesWhileTheTableIsMade passing;
            QVERIFY(station->open());
        }
        QVERIFY(DrivenClock::nowMs() - before > ProgramTab::rows);
        station->tick(Station::emptyRound);
        QCOMPARE(fileText(recordFile), QByteArray("0\t500\t470\t440\t410\t380\t350\t320\t290\t260\n"));

        DrivenClock::advance(90500);
        station->tick(Station::emptyRound);
        QVERIFY(fileText(recordFile).split('\n').at(1).startsWith("90.5\t"));
    }

    void theChartCountsFromTheSameMoment()
    {
        QVERIFY(station->open());
        station->find<QTabWidget>("tabWidget"_s).setCurrentIndex(1);
        DrivenClock::advance(90500);
        station->window().grab();
        const ChCoord& chart = station->find<TShowView>("TSView"_s).coordinates();
        QCOMPARE(chart.dataXClamped(chart.mapping().pixelX(1e6)), 90.5);
    }
};

NELVO_TEST_MAIN(MBEMainWindowTest)
#include "mbemainwindow.moc"
