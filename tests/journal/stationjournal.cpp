// What the journal tells of a station at work, as whole stories.

#include "journal/journal.h"
#include "support/files.h"
#include "support/journalevents.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>

using namespace TestText;

class StationJournalTest : public OpenStationTest
{
    Q_OBJECT

protected slots:
    void init()
    {
        journalEvents();
        OpenStationTest::init();
    }

private slots:
    void theStartTellsWhatStarted()
    {
        QTRY_VERIFY(fileText("NelvoJournal.log"_s).contains("\tconnected\n"));
        const QStringList told = journalEvents();
        QVERIFY2(told[0].startsWith("start version="_s), qPrintable(told[0]));
        QVERIFY(told[0].contains(" adapter="_s + station->adapter.address() + " language=English folder="_s));
        QVERIFY(told[0].endsWith(" last-run=none"_s));
        // The connection is up after the first command was handed over.
        QCOMPARE(told.mid(1), QStringList({"shutters open=xxxxxxx waited-ms=0 link=down"_s, "connected"_s}));
    }

    void theNextStartTellsHowTheLastRunEnded_data()
    {
        QTest::addColumn<bool>("ended");
        QTest::addColumn<bool>("failedToStart");
        QTest::newRow("broken off") << false << false;
        QTest::newRow("ended") << true << false;
        QTest::newRow("broken off, then a start that failed") << false << true;
        QTest::newRow("ended, then a start that failed") << true << true;
    }

    void theNextStartTellsHowTheLastRunEnded()
    {
        QFETCH(bool, ended);
        QFETCH(bool, failedToStart);
        if (ended) {
            QMetaObject::invokeMethod(qApp, "aboutToQuit");
        }
        station->close();
        if (failedToStart) {
            Journal().write("no-start", {{"reason", "adaptor=10"_s}});
        }
        QVERIFY(station->open());
        const QString start = journalEvents().filter("start "_s).last();
        QVERIFY2(start.endsWith(ended ? "last-run=ended"_s : "last-run=broken off"_s), qPrintable(start));
    }

    // Bytes would push the minutes' temperatures out of the journal within hours.
    void everyByteGoesToAJournalOfItsOwn()
    {
        QVERIFY(!QFile::exists(wireFile));
        qputenv("NELVO_JOURNAL", "--wire");
        station->close();
        journalEvents();
        QVERIFY(station->open());
        qunsetenv("NELVO_JOURNAL");
        QVERIFY(station->round());
        station->click(cell("CS", 2));
        DrivenClock::advance(60000);
        station->tick();
        const QStringList events = journalEvents();
        QVERIFY(events.filter("minute "_s).size() == 1);
        QCOMPARE(events.filter(QRegularExpression("^(sent|received) "_s)), QStringList());
        const QStringList all = journalEventsOf(wireFile);
        QVERIFY(all.contains("sent bytes=\\x1b\\x04\\x0a"_s));
        QCOMPARE(all.filter(QRegularExpression("^received "_s)).size(), Channels::count);
        QStringList others = all;
        for (const QString& event : all.filter(QRegularExpression("^(sent|received) "_s))) {
            others.removeAll(event);
        }
        QCOMPARE(others, events);
    }

    void everyMaskIsToldInLettersWithItsWait()
    {
        journalEvents();
        station->click(cell("CS", 2));
        QCOMPARE(
            journalEvents({"connected"_s}), QStringList({"shutters open=xxoxxxx waited-ms=0 link=up"_s}));
        station->tick();
        station->click(cell("CS", 6)); // a reading is awaited now
        QCOMPARE(journalEvents(), QStringList({"shutters-wait open=xxoxxxo"_s}));
        callSlot(&station->window(), "ActionShutter", 5); // as actionTimer does
        QCOMPARE(journalEvents(), QStringList());
        station->click(cell("CS", 0));
        QCOMPARE(journalEvents(), QStringList({"shutters-wait open=oxoxxxo"_s}));
        station->click(cell("CS", 0));
        QCOMPARE(journalEvents(), QStringList({"shutters-wait open=xxoxxxo"_s}));
        DrivenClock::advance(700);
        station->adapter.send("ER\r\n");
        callSlot(&station->window(), "ActionShutter");
        QCOMPARE(journalEvents({"reading-failed"_s}),
            QStringList({"shutters open=xxoxxxo waited-ms=700 link=up"_s}));
        station->click("AllCloseB"_s);
        QCOMPARE(journalEvents(), QStringList({"shutters open=xxxxxxx waited-ms=0 link=up"_s}));
    }

    void failedWritesAreTold()
    {
        station->close();
        Station::storeInUse({});
        QVERIFY(station->open());
        QFile::remove(recordFile);
        QFile::remove(stateFile);
        QVERIFY(QDir().mkdir(recordFile));
        QVERIFY(QDir().mkdir(stateFile));
        journalEvents();
        station->tick(2 * Station::emptyRound);
        QCOMPARE(journalEvents().filter("record-"_s), QStringList({"record-failed"_s}));
        QVERIFY(QDir().rmdir(recordFile));
        station->tick(Station::emptyRound);
        QCOMPARE(journalEvents().filter("record-"_s), QStringList({"record-back lost=2"_s}));
        station->click(cell("TCActive", 1));
        QCOMPARE(
            journalEvents({"connected"_s}), QStringList({"in-use cell=Ga is=Active"_s, "state-failed"_s}));
        QVERIFY(QDir().rmdir(stateFile));
    }

    void aRampIsToldFromItsBeginToItsEnd()
    {
        station->answers[1] = Wire::reading(100.0, 1);
        QVERIFY(station->round());
        journalEvents();
        station->pressRun(1, "160"_s, "2"_s);
        QCOMPARE(journalEvents(), QStringList({"ramp cell=Ga from=100 to=160 minutes=2 rate=30"_s}));
        DrivenClock::advance(1);
        QVERIFY(station->round());
        QVERIFY(station->round());
        QCOMPARE(journalEvents({"late-tick"_s}), QStringList({"set-point cell=Ga deg-c=130 link=up"_s}));
        DrivenClock::advance(60000);
        QVERIFY(station->round());
        QVERIFY(station->round());
        QCOMPARE(journalEvents({"late-tick"_s, "minute"_s}),
            QStringList({"set-point cell=Ga deg-c=160 link=up"_s, "ramp-end cell=Ga why=reached"_s}));
    }

    void aSetPointThatGoesNowhereIsToldAsSuch()
    {
        station->close();
        Station::storeInUse({1});
        QVERIFY(station->open());
        station->answers[1] = Wire::reading(100.0, 1);
        QVERIFY(station->round());
        station->pressRun(1, "160"_s, "2"_s);
        station->click(cell("TCActive", 1)); // else a reading would be awaited for ever
        station->adapter.cut();
        QTRY_VERIFY(fileText(journalFile).contains("\tlost\t"));
        journalEvents();
        DrivenClock::advance(1);
        station->tick(Station::emptyRound);
        QCOMPARE(
            journalEvents().filter("set-point "_s), QStringList({"set-point cell=Ga deg-c=130 link=down"_s}));
    }

    void refusedAndStoppedRampsAreTold()
    {
        station->answers[1] = Wire::reading(100.0, 1);
        QVERIFY(station->round());
        journalEvents();
        station->pressRun(1, "700"_s, "10"_s);
        QCOMPARE(journalEvents(),
            QStringList({"ramp-refused cell=Ga why=rise from=100 to=700 minutes=10 rate=60"_s}));
        station->pressRun(1, "700"_s, "0"_s);
        QCOMPARE(journalEvents(),
            QStringList({"ramp-refused cell=Ga why=time from=100 to=700 minutes=0 rate=0"_s}));
        station->pressRun(1, "110"_s, "10"_s);
        station->click(cell("RunT", 1));
        QCOMPARE(journalEvents().last(), "ramp-end cell=Ga why=stopped"_s);
    }

    void aProgramIsToldStepByStep()
    {
        ProgramStep first;
        first.timeSec = 2.0;
        first.group = "A"_s;
        first.times = 2;
        first.shutters[1] = true;
        ProgramStep hold;
        hold.timeSec = -1.0;
        program().load({first, hold});
        QVERIFY(journalEvents().filter("load "_s).last().endsWith(" rows=2"_s));
        program().click("Run");
        const QStringList begin = journalEvents();
        QVERIFY2(begin[0].startsWith("program rows=2 sha256="_s), qPrintable(begin[0]));
        program().saveFile("digest.dat"_s);
        const QByteArray digest
            = QCryptographicHash::hash(fileText("digest.dat"_s), QCryptographicHash::Sha256).toHex();
        QCOMPARE(begin[0].section(u'=', -1), QString::fromLatin1(digest));
        journalEvents();
        QCOMPARE(begin.mid(1),
            QStringList({"row step=1 fields=0\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x091\\x090\\x090\\x090\\x090\\x090\\x092\\x09A\\x092"_s,
                "row step=2 fields=0\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x090\\x09-1\\x09---NoGroup---\\x091"_s}));
        program().play();
        QCOMPARE(journalEvents({"shutters"_s}),
            QStringList({"step step=1 group=A pass=1 times=2 seconds=2 late-ms=10"_s,
                "step step=1 group=A pass=2 times=2 seconds=2 late-ms=10"_s,
                "step step=2 group= pass=1 times=1 seconds=-1 late-ms=10"_s, "hold"_s}));
        program().click("Pause");
        program().tick();
        QCOMPARE(journalEvents({"late-tick"_s}), QStringList({"resume"_s, "program-end why=over"_s}));
    }

    void pausesStopsAndEditsWhileItPlaysAreTold()
    {
        ProgramStep step;
        step.timeSec = 5.0;
        program().load({step, step});
        program().click("Run");
        program().tick();
        journalEvents();
        program().click("Pause");
        program().click("Pause");
        QCOMPARE(journalEvents(), QStringList({"pause"_s, "resume"_s}));
        program().time(1)->setText("7"_s);
        program().click("Run");
        QCOMPARE(journalEvents().size(), 2);
        program().click("Run");
        journalEvents();
        program().time(1)->setText("8"_s);
        program().click("Run");
        const QStringList told = journalEvents();
        QVERIFY2(told[0].startsWith("edit step=2 fields="_s), qPrintable(told[0]));
        QVERIFY(told[0].endsWith("\\x098\\x09---NoGroup---\\x091"_s));
        QCOMPARE(told[1], "program-end why=stopped"_s);
    }

    void failedReadingsAreToldOnceAndWhenTheyAreBack()
    {
        station->answers[4] = "ER";
        QVERIFY(station->round());
        QVERIFY(station->round());
        QCOMPARE(journalEvents().filter("reading-"_s), QStringList({"reading-failed cell=Al why=error"_s}));
        station->answers.remove(4);
        QVERIFY(station->round());
        QCOMPARE(journalEvents().filter("reading-"_s), QStringList({"reading-back cell=Al failed=2"_s}));
    }

    void aSilentControllerIsTold()
    {
        station->tick(301);
        station->tick();
        QCOMPARE(journalEvents().filter("reading-"_s), QStringList({"reading-failed cell=Be why=silence"_s}));
    }

    // A line that is no reading frees the bus; "ER" was not said.
    void aReplyOfTheWrongLengthIsTakenForSilence()
    {
        station->tick();
        station->adapter.send("0100021.0\r\n");
        station->tick(301);
        station->tick();
        QCOMPARE(journalEvents().filter("reading-"_s), QStringList({"reading-failed cell=Be why=silence"_s}));
    }

    void inUseAndControlAreTold()
    {
        journalEvents();
        station->click(cell("TCActive", 8));
        station->click(cell("TCActive", 8));
        station->togglePolling();
        station->togglePolling();
        QCOMPARE(journalEvents({"connected"_s}),
            QStringList({"in-use cell=Pre Ch is=InActive"_s, "in-use cell=Pre Ch is=Active"_s,
                "control is=off"_s, "control is=on"_s}));
    }

    void filesAreTold()
    {
        journalEvents();
        program().saveFile("saved.dat"_s);
        QCOMPARE(journalEvents({"connected"_s}), QStringList({"save file=saved.dat"_s}));
        const MessageCapture silent;
        program().loadFile("missing.dat"_s);
        program().saveFile("missing/saved.dat"_s);
        QCOMPARE(journalEvents(),
            QStringList({"load-refused file=missing.dat"_s, "save-failed file=missing/saved.dat"_s}));
    }

    void theMinuteTellsWhatThePanelShows()
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            station->answers[channel] = Wire::reading(20.5 + channel, channel);
        }
        station->answers[3] = "ER";
        QVERIFY(station->round());
        DrivenClock::advance(59999);
        station->tick();
        QVERIFY(journalEvents().filter("minute"_s).isEmpty());
        DrivenClock::advance(1);
        station->tick();
        QCOMPARE(journalEvents().filter("minute"_s),
            QStringList({"minute measured=20.5 21.5 22.5 ----.- 24.5 25.5 26.5 27.5 28.5 "
                         "set-points=0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0.0"_s}));
        DrivenClock::advance(200000);
        station->tick(3);
        QCOMPARE(journalEvents().filter("minute"_s).size(), 1);
    }

    void stepsAndNapsAreTold_data()
    {
        QTest::addColumn<int>("stepMs");
        QTest::addColumn<int>("napMs");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("set forward") << 3600000 << 0 << QStringList{"clock-stepped ms=3600000"_s};
        QTest::newRow("set back") << -86400000 << 0 << QStringList{"clock-stepped ms=-86400000"_s};
        QTest::newRow("a nap") << 0 << 600000 << QStringList{"slept ms=600000"_s};
        QTest::newRow("both") << 1000 << 2000 << QStringList{"clock-stepped ms=1000"_s, "slept ms=2000"_s};
    }

    void stepsAndNapsAreTold()
    {
        QFETCH(int, stepMs);
        QFETCH(int, napMs);
        QFETCH(QStringList, told);
        station->tick();
        journalEvents();
        DrivenClock::stepSystem(stepMs);
        DrivenClock::sleep(napMs);
        DrivenClock::advance(10);
        station->tick();
        QCOMPARE(journalEvents({"connected"_s}), told);
        DrivenClock::advance(10);
        station->tick();
        QCOMPARE(journalEvents({"connected"_s}), QStringList());
    }

    void lateTicksAreTold()
    {
        station->tick();
        journalEvents();
        DrivenClock::advance(5010);
        station->tick();
        QCOMPARE(journalEvents(), QStringList({"bus-held"_s, "late-tick ms=5000"_s}));
    }
};

NELVO_TEST_MAIN(StationJournalTest)
#include "stationjournal.moc"
