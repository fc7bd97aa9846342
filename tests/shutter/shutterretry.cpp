// A shutter command on a bus that a temperature reply keeps busy. The station's own timers run here.

#include "support/messagecapture.h"
#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

namespace {

const QString retrying = "Shutter retrying"_s;
const QString sent = "Shutter Ok"_s;

} // namespace

class ShutterRetryTest : public StationTest
{
    Q_OBJECT

    int lines(const QString& text) const { return MessageCapture::texts().count(text); }

    std::unique_ptr<MessageCapture> capture;

private slots:
    void init()
    {
        // One channel in use: its read is on the bus and stays there until the test answers it.
        Station::storeInUse({0});
        station = std::make_unique<Station>(Station::Time::Running);
        QVERIFY(station->open());
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
        capture = std::make_unique<MessageCapture>();
    }

    void cleanup()
    {
        capture.reset();
        StationTest::cleanup();
    }

    void theBusIsNotReaddressedWhileAReplyIsPending()
    {
        station->click(cell("CS", 0));
        QTRY_VERIFY(lines(retrying) >= 3);
        QVERIFY(station->adapter.expectNothing());
        station->adapter.send(Wire::reading(25.0) + '\n');
        QVERIFY(station->adapter.expect(Wire::toShutters + Wire::shutters(0x01)));
    }

    void thePanelShowsTheChangeWhenItIsSent()
    {
        const QString before = station->style(cell("CS", 0));
        station->click(cell("CS", 0));
        QTRY_VERIFY(lines(retrying) >= 2);
        QCOMPARE(station->text(cell("CS", 0)), "Close"_s);
        QCOMPARE(station->style(cell("CS", 0)), before);

        station->adapter.send(Wire::reading(25.0) + '\n');
        QTRY_COMPARE(lines(sent), 1);
        QCOMPARE(station->text(cell("CS", 0)), "Open"_s);
        QCOMPARE(station->style(cell("CS", 0)), yellow);
    }

    void retriesSayThatTheyDo()
    {
        station->click(cell("CS", 0));
        // The first line comes with the click, before any timer.
        QCOMPARE(MessageCapture::texts(), QStringList{retrying});
        const LoggedMessage first = MessageCapture::messages().first();
        QCOMPARE(first.unit, "shutter"_s);
        QCOMPARE(first.function, "void MBEMain::ActionShutter()"_s);
        QCOMPARE(first.category, "default"_s);
        QTRY_VERIFY(lines(retrying) >= 3);
        QCOMPARE(lines(retrying), MessageCapture::texts().size());
    }

    void retriesStopWithTheReply()
    {
        station->click(cell("CS", 0));
        QTRY_VERIFY(lines(retrying) >= 2);
        station->adapter.send(Wire::reading(25.0) + '\n');
        QTRY_COMPARE(lines(sent), 1);
        const int retries = lines(retrying);

        // A whole polling round later, with the next read pending, nothing was tried again.
        QVERIFY(station->adapter.expect(
            Wire::toShutters + Wire::shutters(0x01) + Wire::toTemperatures + Wire::readRequest(0)));
        QTRY_COMPARE(Station::records(), 1);
        QCOMPARE(lines(retrying), retries);
        QCOMPARE(lines(sent), 1);
        QVERIFY(station->adapter.expectNothing());
    }

    void theLastChangeWins()
    {
        station->click(cell("CS", 0));
        station->click(cell("CS", 1));
        QTRY_VERIFY(lines(retrying) >= 4);
        station->click(cell("CS", 0));
        station->click(cell("CS", 6));
        station->adapter.send(Wire::reading(25.0) + '\n');
        // One command for all four clicks, and it is the last state.
        QVERIFY(station->adapter.expect(
            Wire::toShutters + Wire::shutters(0x42) + Wire::toTemperatures + Wire::readRequest(0)));
        QCOMPARE(lines(sent), 1);
        QCOMPARE(lines("\"GPIB shutter controll [xoxxxxo]\""_s), 1);
    }

    void aProgramsStepsWaitToo()
    {
        for (int row = 0; row < 3; ++row) {
            program().enter(row, row < 2 ? "0.03"_s : "60"_s);
            program().shutter(row, row)->click();
        }
        program().click("Run");
        QTRY_COMPARE(program().marked(), QVector<int>{3});
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(station->states("CS", "Open"_s, "Close"_s), "xxxxxxx"_s);
        station->adapter.send(Wire::reading(25.0) + '\n');
        // Of the three steps' commands, the last one is sent, once.
        QVERIFY(station->adapter.expect(
            Wire::toShutters + Wire::shutters(0x04) + Wire::toTemperatures + Wire::readRequest(0)));
        QCOMPARE(lines(sent), 1);
        QCOMPARE(station->states("CS", "Open"_s, "Close"_s), "xxoxxxx"_s);
    }

    void itIsTriedAgainEveryTenMilliseconds()
    {
        const FiredTimers timers;
        station->click(cell("CS", 0));
        QTRY_VERIFY(lines(retrying) >= 3);
        QCOMPARE(timers.intervals(), "10"_s);
    }

    void allCloseWaitsToo()
    {
        station->click(cell("NS", 2));
        station->click("ChangeShutterB"_s);
        station->click("AllCloseB"_s);
        QCOMPARE(MessageCapture::texts().mid(0, 3), (QStringList{retrying, "All Close 7"_s, retrying}));
        QVERIFY(station->adapter.expectNothing());
        station->adapter.send("ER\n");
        QVERIFY(station->adapter.expect(Wire::toShutters + Wire::shutters(0x00)));
        QCOMPARE(station->text(cell("NS", 2)), "Open"_s);
    }

    void thereIsNoLimitOnRetries()
    {
        station->click(cell("CS", 4));
        // A hundred and more: longer than any reasonable reply takes.
        QTRY_VERIFY_WITH_TIMEOUT(lines(retrying) >= 120, 10000);
        QVERIFY(station->adapter.expectNothing());
        station->adapter.send(Wire::reading(25.0) + '\n');
        QVERIFY(station->adapter.expect(Wire::toShutters + Wire::shutters(0x10)));
    }
};

NELVO_TEST_MAIN(ShutterRetryTest)
#include "shutterretry.moc"
