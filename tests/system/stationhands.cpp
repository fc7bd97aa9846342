// The shipped program under an operator's hands: it answers whatever the link does, and ends with its window.

#include "support/files.h"
#include "support/journalevents.h"
#include "support/ordinaryuser.h"
#include "support/scriptedadapter.h"
#include "support/station.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace TestText;

namespace {

const QStringList seed{"--seed"_s, "7"_s};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

// Whether each folder on the way to it, and the file itself, lets others pass.
bool isOpenToOthers(const QString& fileName)
{
    for (QFileInfo info(fileName); !info.isRoot(); info = QFileInfo(info.path())) {
        if (!info.permission(QFileDevice::ExeOther)) {
            return false;
        }
    }
    return true;
}

} // namespace

class StationHandsTest : public QObject
{
    Q_OBJECT

    // A sign of life: the window does what a click asks for.
    void expectAnAnsweredClick()
    {
        QCOMPARE(station->text(cell("NS", 3)), "Close"_s);
        station->click(cell("NS", 3));
        QCOMPARE(station->text(cell("NS", 3)), "Open"_s);
    }

    // Another one: time goes on in it. Without a cell in use a polling round needs no instrument.
    void expectRecords()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            station->click(cell("TCActive", channel));
        }
        const int records = Station::records();
        QVERIFY(station->process().waitFor(
            [records](const QString&) { return Station::records() > records + 1; }));
    }

    void expectSilence()
    {
        for (const char* warning : {"QIODevice", "QNativeSocketEngine", "QAbstractSocket"}) {
            QVERIFY2(!station->process().output().contains(QLatin1String(warning)), warning);
        }
    }

    std::unique_ptr<HandledStation> station;

private slots:
    void cleanup()
    {
        station.reset();
        QFile::remove(recordFile);
        QFile::remove(stateFile);
    }

    void livesOnWhenRepliesStop_data()
    {
        QTest::addColumn<QStringList>("faults");
        QTest::newRow("lost") << words("--fault lost=0.1");
        QTest::newRow("late") << words("--fault late=0.3");
        QTest::newRow("silent") << words("--fault silent=0.1");
        QTest::newRow("half-open") << words("--fault half-open=0.1");
    }

    void livesOnWhenRepliesStop()
    {
        QFETCH(QStringList, faults);
        Chamber chamber(seed + faults);
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        QVERIFY(chamber.waitForText("fault "_s));
        chamber.kill();
        station->click("AllCloseB"_s);
        expectAnAnsweredClick();
        expectSilence();
    }

    void livesOnWhenItsConnectionIsCut()
    {
        Chamber chamber(seed + words("--fault cut=0.2"));
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        QVERIFY(chamber.waitForText("disconnected"_s));
        QVERIFY(station->process().waitFor(
            [](const QString&) { return fileText(journalFile).contains("\tlost\t"); }));
        station->click("AllCloseB"_s);
        station->click(cell("CS", 0));
        expectAnAnsweredClick();
        expectRecords();
        expectSilence();
    }

    void livesWithoutAnAdapter()
    {
        QFile::remove(journalFile);
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        QVERIFY(station->process().waitFor(
            [](const QString&) { return fileText(journalFile).contains("\trefused\twhy="); }));
        station->click("AllCloseB"_s);
        expectAnAnsweredClick();
        expectSilence();
    }

    void livesInAFolderThatCannotBeWritten()
    {
        if (mayWriteEverything() && !isOpenToOthers(nelvoProgram())) {
            QSKIP("the programs are closed to others");
        }
        AS_ORDINARY_USER();
        Chamber chamber(seed);
        {
            const ClosedFolder closed;
            station = std::make_unique<HandledStation>();
            QVERIFY(station->isUp());
            station->click(cell("CS", 2));
            QVERIFY(chamber.waitForText("shutters xxoxxxx"_s));
            expectAnAnsweredClick();
            QCOMPARE(QDir().entryList({"*Nelvo*"_s, recordFile}), QStringList());
        }
        station->click(cell("CS", 4)); // something to tell
        QVERIFY(chamber.waitForText("shutters xxoxoxx"_s));
        QVERIFY(station->process().waitFor(
            [](const QString&) { return fileText(journalFile).contains("\tlost-lines\tcount="); }));
        QVERIFY(station->process().waitFor([](const QString&) { return Station::records() > 1; }));
        expectSilence();
    }

    void aStartThatFailsHidesNoCrash()
    {
        QFile::remove(journalFile);
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        station->process().kill();
        station.reset();
        station = std::make_unique<HandledStation>(QStringList{"NELVO_ADAPTER=127.0.0.9 "_s});
        QVERIFY(station->dismissesBox());
        QCOMPARE(station->process().exitCode(), 1);
        station.reset();
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        const QStringList starts = journalEvents().filter(QRegularExpression("^(no-)?start "_s));
        QCOMPARE(starts.size(), 3);
        QVERIFY(starts[0].endsWith("last-run=none"_s));
        QVERIFY(starts[1].startsWith("no-start "_s));
        QVERIFY2(starts[2].endsWith("last-run=broken off"_s), qPrintable(starts[2]));
    }

    void looksTheSameEverywhere()
    {
        // Where the toolkit would choose another style by itself. Windows has one of its own, and no such
        // platform is packed for it.
#ifdef Q_OS_WIN
        station = std::make_unique<HandledStation>();
#else
        station = std::make_unique<HandledStation>(QStringList{"QT_QPA_PLATFORM=minimal"_s});
#endif
        QVERIFY(station->isUp());
        QCOMPARE(station->widgetStyle(), "fusion"_s);
    }

    void aRampKeepsThePcAwake()
    {
        QFile::remove(journalFile);
        const auto isAsked = [this](const QByteArray& what) {
            return station->process().waitFor(
                [&what](const QString&) { return fileText(journalFile).contains("\tpc\tasked=" + what); });
        };
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        station->click(cell("RunT", 0));
        QVERIFY(isAsked("awake"));
        station->click(cell("RunT", 0));
        QVERIFY(isAsked("may-sleep"));
    }

    void opensAtTheSizeOfItsForm()
    {
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        QVERIFY(!station->isMaximized());
    }

    void theToolkitsDialogsSpeakItsLanguage()
    {
        station = std::make_unique<HandledStation>(QStringList(), QStringList{"-j"_s});
        QVERIFY(station->isUp());
        station->click("ProgLoad"_s);
        QVERIFY2(station->text("fileNameLabel"_s).contains("ファイル"_s),
            qPrintable(station->text("fileNameLabel"_s)));
    }

    void endsWithItsWindowAndSendsNothing_data()
    {
        QTest::addColumn<QString>("dialog");
        QTest::newRow("alone") << QString();
        QTest::newRow("the load dialog open") << "ProgLoad"_s;
        QTest::newRow("the save dialog open") << "ProgSave"_s;
    }

    void endsWithItsWindowAndSendsNothing()
    {
        QFETCH(QString, dialog);
        ScriptedAdapter adapter;
        Station::storeInUse({});
        station = std::make_unique<HandledStation>();
        QVERIFY(station->isUp());
        QVERIFY(adapter.expect(Wire::opening));
        station->click(cell("CS", 2));
        QVERIFY(adapter.expect(Wire::shutters(0x04)));
        if (!dialog.isEmpty()) {
            station->click(dialog);
        }
        station->closeWindow();
        QCOMPARE(station->process().exitCode(), 0);
        QVERIFY(adapter.expectNothing());
    }
};

NELVO_TEST_MAIN(StationHandsTest)
#include "stationhands.moc"
