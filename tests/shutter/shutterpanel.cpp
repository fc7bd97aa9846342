// The shutter panel under an operator's hand, on a bus that is free.

#include "support/messagecapture.h"
#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

class ShutterPanelTest : public QuietStationTest
{
    Q_OBJECT

    QString shown(const char* row) const { return station->states(row, "Open"_s, "Close"_s); }

private slots:
    void startShowsAndCommandsAllClosed()
    {
        // open() has seen the command, the last of the opening bytes.
        QCOMPARE(shown("CS"), "xxxxxxx"_s);
        QCOMPARE(shown("NS"), "xxxxxxx"_s);
        QStringList names;
        for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
            names += station->text(cell("SName", shutter));
        }
        QCOMPARE(names.join(QLatin1Char(' ')), "Be Ga Si As4 Al In As7"_s);
    }

    void startSaysWhatItDoes()
    {
        station->close();
        const MessageCapture capture;
        QVERIFY(station->open());
        QCOMPARE(MessageCapture::texts(),
            (QStringList{"All Close 7"_s, "Shutter Ok"_s, "\"GPIB shutter controll [xxxxxxx]\""_s}));
    }

    void newButtonsPrepareAndSendNothing()
    {
        const MessageCapture capture;
        station->click(cell("NS", 0));
        station->click(cell("NS", 3));
        QCOMPARE(shown("NS"), "oxxoxxx"_s);
        QCOMPARE(shown("CS"), "xxxxxxx"_s);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(MessageCapture::texts(), QStringList());
    }

    void newClickedTwiceIsAsBefore()
    {
        for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
            station->click(cell("NS", shutter));
            station->click(cell("NS", shutter));
            QCOMPARE(shown("NS"), "xxxxxxx"_s);
        }
        QVERIFY(station->adapter.expectNothing());
    }

    void nowButtonsSendAtOnce()
    {
        station->click(cell("CS", 2));
        QVERIFY(station->adapter.expect(Wire::shutters(0x04)));
        QCOMPARE(shown("CS"), "xxoxxxx"_s);
        station->click(cell("CS", 2));
        QVERIFY(station->adapter.expect(Wire::shutters(0x00)));
        QCOMPARE(shown("CS"), "xxxxxxx"_s);
    }

    void everyShutterHasItsBit()
    {
        int mask = 0;
        for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
            station->click(cell("CS", shutter));
            mask |= 1 << shutter;
            QVERIFY(station->adapter.expect(Wire::shutters(mask)));
        }
        QCOMPARE(mask, 0x7F);
        QCOMPARE(shown("CS"), "ooooooo"_s);
    }

    void changeSendsThePreparedCombination()
    {
        station->click(cell("NS", 0));
        station->click(cell("NS", 6));
        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x41)));
        QCOMPARE(shown("CS"), "oxxxxxo"_s);
    }

    void changeSendsEvenWhenNothingChanges()
    {
        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x00)));
        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x00)));
    }

    void changeLeavesThePreparedCombination()
    {
        station->click(cell("NS", 1));
        station->click("ChangeShutterB"_s);
        QCOMPARE(shown("NS"), "xoxxxxx"_s);
        station->click(cell("NS", 2));
        QCOMPARE(shown("CS"), "xoxxxxx"_s);
        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x02) + Wire::shutters(0x06)));
    }

    void allCloseKeepsThePreparedCombination()
    {
        station->click(cell("NS", 1));
        station->click(cell("NS", 4));
        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x12)));

        station->click("AllCloseB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x00)));
        QCOMPARE(shown("CS"), "xxxxxxx"_s);
        QCOMPARE(shown("NS"), "xoxxoxx"_s);

        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x12)));
        QCOMPARE(shown("CS"), "xoxxoxx"_s);
    }

    void nowLeavesNewAlone()
    {
        station->click(cell("NS", 0));
        station->click(cell("CS", 1));
        QVERIFY(station->adapter.expect(Wire::shutters(0x02)));
        QCOMPARE(shown("NS"), "oxxxxxx"_s);
        // What was opened by hand and is not in the prepared combination is closed by it.
        station->click("ChangeShutterB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x01)));
        QCOMPARE(shown("CS"), "oxxxxxx"_s);
    }

    void masksThatLookLikeControlBytesArrive()
    {
        for (const int mask : {0x0A, 0x0D, 0x1B, 0x2B}) {
            const QString before = shown("NS");
            for (int n = 0; n < Channels::shutterCount; ++n) {
                const bool wanted = (mask & (1 << n)) != 0;
                if (wanted != (before[n] == QLatin1Char('o'))) {
                    station->click(cell("NS", n));
                }
            }
            station->click("ChangeShutterB"_s);
            QVERIFY(station->adapter.expect(Wire::shutters(mask)));
        }
    }

    void debugLinesNameTheUnit()
    {
        const MessageCapture capture;
        station->click(cell("CS", 0));
        station->click(cell("CS", 3));
        station->click("AllCloseB"_s);
        QVERIFY(station->adapter.expect(Wire::shutters(0x01) + Wire::shutters(0x09) + Wire::shutters(0x00)));

        QCOMPARE(MessageCapture::texts(),
            (QStringList{"Shutter Ok"_s, "\"GPIB shutter controll [oxxxxxx]\""_s, "Shutter Ok"_s,
                "\"GPIB shutter controll [oxxoxxx]\""_s, "All Close 7"_s, "Shutter Ok"_s,
                "\"GPIB shutter controll [xxxxxxx]\""_s}));
        for (const LoggedMessage& message : MessageCapture::messages()) {
            QCOMPARE(message.type, QtDebugMsg);
            QCOMPARE(message.unit, "shutter"_s);
            QCOMPARE(message.category, "default"_s);
            QVERIFY(message.line > 0);
            const QString slot = message.text.startsWith("All Close"_s) ? "void MBEMain::AllClose()"_s
                                                                        : "void MBEMain::ActionShutter()"_s;
            QCOMPARE(message.function, slot);
        }
    }
};

NELVO_TEST_MAIN(ShutterPanelTest)
#include "shutterpanel.moc"
