// The polling state machine, transition by transition, tick by tick. Each test is named after the state it
// leaves: read, await reply, reply ready, ramp step, next channel.

#include "support/messagecapture.h"
#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

namespace {

const QString unknown = "----.-"_s;

} // namespace

class PollingStatesTest : public OpenStationTest
{
    Q_OBJECT

    QString shown(int channel) const { return station->text(cell("CDeg", channel)); }

    // After a reading is shown: ramp step, next channel, read.
    bool awaitRead(int channel)
    {
        station->tick(3);
        return station->adapter.expect(Wire::readRequest(channel));
    }

private slots:
    // Every test begins with the read of channel 0 on the wire.
    void init()
    {
        OpenStationTest::init();
        station->tick();
        QVERIFY(station->adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
    }

    void readWaitsWhileAReplyIsPending()
    {
        station->tick(301); // the time-out, shown
        QCOMPARE(shown(0), unknown);
        station->tick(2);
        station->tick(1000); // channel 1's read has nothing to go by
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(shown(1), "0.0"_s);
        station->adapter.send("\r\n"); // any line frees the bus
        station->tick();
        QVERIFY(station->adapter.expect(Wire::readRequest(1)));
    }

    void awaitReplyStaysUntilALineComes()
    {
        station->tick(200);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(shown(0), "0.0"_s);
    }

    void awaitReplyEndsWithAReading()
    {
        station->tick(150);
        station->adapter.send(Wire::reading(345.5) + "\r\n");
        station->tick();
        QCOMPARE(shown(0), "345.5"_s);
        QVERIFY(awaitRead(1));
    }

    void awaitReplyEndsWithAnError()
    {
        station->adapter.send("ER\r\n");
        station->tick();
        QCOMPARE(shown(0), unknown);
        QVERIFY(awaitRead(1));
    }

    void awaitReplyIgnoresOtherLines_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("10 bytes") << QByteArray("01M 0512.3");
        QTest::newRow("12 bytes") << QByteArray("01M 00512.3E");
        QTest::newRow("11 with two blanks in a row, 10 when simplified") << QByteArray("01M  512.3E");
        QTest::newRow("two other bytes") << QByteArray("OK");
        QTest::newRow("an acknowledgement") << QByteArray("\x06");
        QTest::newRow("the adapter's answer") << QByteArray("1");
        QTest::newRow("long") << QByteArray(5000, '7');
    }

    void awaitReplyIgnoresOtherLines()
    {
        QFETCH(QByteArray, line);
        station->adapter.send(line + "\r\n");
        station->tick(100);
        QCOMPARE(shown(0), "0.0"_s);
        QVERIFY(station->adapter.expectNothing());
        // The read is still open: the reply, when it comes after all, is this channel's.
        station->adapter.send(Wire::reading(61.0) + "\r\n");
        station->tick();
        QCOMPARE(shown(0), "61"_s);
    }

    void awaitReplyEndsAfterThreeHundredTicks()
    {
        station->tick(300);
        QCOMPARE(shown(0), "0.0"_s);
        station->tick();
        QCOMPARE(shown(0), unknown);
    }

    void awaitReplyCountsThreeHundredTicksWhereverItStarts()
    {
        // Channel after channel falls silent once; each starts at another place of the tick counter's cycle.
        // The late line frees the bus for the next.
        for (int channel = 0; channel < 8; ++channel) {
            station->tick(300);
            QVERIFY(shown(channel) != unknown);
            station->tick();
            QCOMPARE(shown(channel), unknown);
            station->adapter.send("late\r\n");
            QVERIFY(awaitRead(channel + 1));
            station->tick(37 * channel);
            station->adapter.send(Wire::reading(25.0) + "\r\n");
            station->tick();
            QCOMPARE(shown(channel + 1), "25"_s);
            if (++channel < 8) {
                QVERIFY(awaitRead(channel + 1));
            }
        }
    }

    void replyReadyShowsTheLastReplyOfSeveral()
    {
        station->adapter.send(Wire::reading(100.0) + "\r\n" + Wire::reading(200.0) + "\r\n");
        station->tick();
        QCOMPARE(shown(0), "200"_s);
    }

    void readKeepsALateReplyToItself()
    {
        station->tick(303); // the time-out and on to channel 1, which waits for the bus
        QCOMPARE(shown(0), unknown);
        station->adapter.send(Wire::reading(99.0) + "\r\n");
        QCOMPARE(shown(0), unknown);
        station->tick();
        QVERIFY(station->adapter.expect(Wire::readRequest(1)));
        station->tick(100); // the late reply is nobody's: channel 1 awaits its own
        QCOMPARE(shown(0), unknown);
        QCOMPARE(shown(1), "0.0"_s);
        station->adapter.send(Wire::reading(44.0) + "\r\n");
        station->tick();
        QCOMPARE(shown(1), "44"_s);
    }

    void rampStepShowsNothingOfALateReply()
    {
        station->adapter.send(Wire::reading(10.0) + "\r\n");
        station->tick(); // shown; the ramp step is next
        station->adapter.send(Wire::reading(20.0) + "\r\n");
        station->tick(); // the next channel is next
        station->adapter.send(Wire::reading(30.0) + "\r\n");
        station->tick();
        QCOMPARE(shown(0), "10"_s);
        QCOMPARE(shown(1), "0.0"_s);
        station->tick();
        QVERIFY(station->adapter.expect(Wire::readRequest(1)));
        station->tick(50);
        QCOMPARE(shown(1), "0.0"_s);
    }

    void aSilentControllerHoldsTheNextRead()
    {
        const MessageCapture capture;
        station->tick(2000);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(shown(0), unknown);
        for (int channel = 1; channel < Channels::count; ++channel) {
            QCOMPARE(shown(channel), "0.0"_s);
        }
        // Silence is silence: neither the operator nor the log is told.
        QCOMPARE(MessageCapture::texts(), QStringList());
        QVERIFY(station->statusBar().isEmpty());
    }

    void halfALineIsNoReply()
    {
        station->adapter.send("01M 0512.3E");
        station->tick(100);
        QCOMPARE(shown(0), "0.0"_s);
        station->adapter.send("\n");
        station->tick();
        QCOMPARE(shown(0), "512.3"_s);
    }
};

NELVO_TEST_MAIN(PollingStatesTest)
#include "pollingstates.moc"
