// The polling state machine, transition by transition, tick by tick. Each test is named after the state it
// leaves: read, await reply, reply ready, ramp step, next channel.

#include "support/messagecapture.h"
#include "support/stationfixture.h"
#include "support/testmain.h"

class PollingStatesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { station.reset(); }

    void readWaitsWhileAReplyIsPending();
    void awaitReplyStaysUntilALineComes();
    void awaitReplyEndsWithAReading();
    void awaitReplyEndsWithAnError();
    void awaitReplyIgnoresOtherLines_data();
    void awaitReplyIgnoresOtherLines();
    void awaitReplyEndsAfterThreeHundredTicks();
    void awaitReplyCountsThreeHundredTicksWhereverItStarts();
    void replyReadyShowsTheLastReplyOfSeveral();
    void readKeepsALateReplyToItself();
    void rampStepShowsNothingOfALateReply();
    void aSilentControllerHoldsTheNextRead();
    void halfALineIsNoReply();

private:
    QString shown(int channel) const { return station->text(QStringLiteral("CDeg0%1").arg(channel + 1)); }
    bool awaitRead(int channel);

    std::unique_ptr<StationFixture> station;
};

namespace {

const QString unknown = QStringLiteral("----.-");
const QByteArray toTemperatures = "++addr 1\n++eos 0\n++eoi 1\n";

} // namespace

// Every test begins with the read of channel 0 on the wire.
void PollingStatesTest::init()
{
    station = std::make_unique<StationFixture>();
    QVERIFY(station->open());
    station->tick();
    QVERIFY(station->adapter.expect(toTemperatures + readBytes(0)));
}

// After a reading is shown: ramp step, next channel, read.
bool PollingStatesTest::awaitRead(int channel)
{
    station->tick(3);
    return station->adapter.expect(readBytes(channel));
}

void PollingStatesTest::readWaitsWhileAReplyIsPending()
{
    station->tick(301); // the time-out, shown
    QCOMPARE(shown(0), unknown);
    station->tick(2);
    station->tick(1000); // channel 1's read has nothing to go by
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(shown(1), QStringLiteral("0.0"));
    station->adapter.send("\r\n"); // any line frees the bus
    station->tick();
    QVERIFY(station->adapter.expect(readBytes(1)));
}

void PollingStatesTest::awaitReplyStaysUntilALineComes()
{
    station->tick(200);
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(shown(0), QStringLiteral("0.0"));
}

void PollingStatesTest::awaitReplyEndsWithAReading()
{
    station->tick(150);
    station->adapter.send(reading(345.5) + "\r\n");
    station->tick();
    QCOMPARE(shown(0), QStringLiteral("345.5"));
    QVERIFY(awaitRead(1));
}

void PollingStatesTest::awaitReplyEndsWithAnError()
{
    station->adapter.send("ER\r\n");
    station->tick();
    QCOMPARE(shown(0), unknown);
    QVERIFY(awaitRead(1));
}

void PollingStatesTest::awaitReplyIgnoresOtherLines_data()
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

void PollingStatesTest::awaitReplyIgnoresOtherLines()
{
    QFETCH(QByteArray, line);
    station->adapter.send(line + "\r\n");
    station->tick(100);
    QCOMPARE(shown(0), QStringLiteral("0.0"));
    QVERIFY(station->adapter.expectNothing());
    // The read is still open: the reply, when it comes after all, is this channel's.
    station->adapter.send(reading(61.0) + "\r\n");
    station->tick();
    QCOMPARE(shown(0), QStringLiteral("61"));
}

void PollingStatesTest::awaitReplyEndsAfterThreeHundredTicks()
{
    station->tick(300);
    QCOMPARE(shown(0), QStringLiteral("0.0"));
    station->tick();
    QCOMPARE(shown(0), unknown);
}

void PollingStatesTest::awaitReplyCountsThreeHundredTicksWhereverItStarts()
{
    // Channel after channel falls silent once; each starts at another place of the tick counter's cycle. The
    // late line frees the bus for the next.
    for (int channel = 0; channel < 8; ++channel) {
        station->tick(300);
        QVERIFY(shown(channel) != unknown);
        station->tick();
        QCOMPARE(shown(channel), unknown);
        station->adapter.send("late\r\n");
        QVERIFY(awaitRead(channel + 1));
        station->tick(37 * channel);
        station->adapter.send(reading(25.0) + "\r\n");
        station->tick();
        QCOMPARE(shown(channel + 1), QStringLiteral("25"));
        if (++channel < 8) {
            QVERIFY(awaitRead(channel + 1));
        }
    }
}

void PollingStatesTest::replyReadyShowsTheLastReplyOfSeveral()
{
    station->adapter.send(reading(100.0) + "\r\n" + reading(200.0) + "\r\n");
    station->tick();
    QCOMPARE(shown(0), QStringLiteral("200"));
}

void PollingStatesTest::readKeepsALateReplyToItself()
{
    station->tick(303); // the time-out and on to channel 1, which waits for the bus
    QCOMPARE(shown(0), unknown);
    station->adapter.send(reading(99.0) + "\r\n");
    QCOMPARE(shown(0), unknown);
    station->tick();
    QVERIFY(station->adapter.expect(readBytes(1)));
    station->tick(100); // the late reply is nobody's: channel 1 awaits its own
    QCOMPARE(shown(0), unknown);
    QCOMPARE(shown(1), QStringLiteral("0.0"));
    station->adapter.send(reading(44.0) + "\r\n");
    station->tick();
    QCOMPARE(shown(1), QStringLiteral("44"));
}

void PollingStatesTest::rampStepShowsNothingOfALateReply()
{
    station->adapter.send(reading(10.0) + "\r\n");
    station->tick(); // shown; the ramp step is next
    station->adapter.send(reading(20.0) + "\r\n");
    station->tick(); // the next channel is next
    station->adapter.send(reading(30.0) + "\r\n");
    station->tick();
    QCOMPARE(shown(0), QStringLiteral("10"));
    QCOMPARE(shown(1), QStringLiteral("0.0"));
    station->tick();
    QVERIFY(station->adapter.expect(readBytes(1)));
    station->tick(50);
    QCOMPARE(shown(1), QStringLiteral("0.0"));
}

void PollingStatesTest::aSilentControllerHoldsTheNextRead()
{
    const MessageCapture capture;
    station->tick(2000);
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(shown(0), unknown);
    for (int channel = 1; channel < 9; ++channel) {
        QCOMPARE(shown(channel), QStringLiteral("0.0"));
    }
    // Silence is silence: neither the operator nor the log is told.
    QCOMPARE(MessageCapture::texts(), QStringList());
    QVERIFY(station->statusBar().isEmpty());
}

void PollingStatesTest::halfALineIsNoReply()
{
    station->adapter.send("01M 0512.3E");
    station->tick(100);
    QCOMPARE(shown(0), QStringLiteral("0.0"));
    station->adapter.send("\n");
    station->tick();
    QCOMPARE(shown(0), QStringLiteral("512.3"));
}

NELVO_TEST_MAIN(PollingStatesTest)

#include "pollingstates.moc"
