// Ramps of many minutes on a driven clock: what the controllers get, and when.

#include "support/stationtest.h"
#include "support/testmain.h"

using namespace TestText;

namespace {

QList<QByteArray> messages(int channel, const QByteArrayList& values)
{
    QList<QByteArray> list;
    for (const QByteArray& value : values) {
        list.append(Wire::setPoint(channel, value));
    }
    return list;
}

} // namespace

class CellRampTest : public StationTest
{
    Q_OBJECT

    bool start(int channel, double current, const QString& target, const QString& duration)
    {
        if (!station->isOpen()) {
            Station::storeInUse({channel});
            station->answers[channel] = Wire::reading(current);
            if (!station->open() || !station->round()) {
                return false;
            }
        }
        station->pressRun(channel, target, duration);
        return station->isRamping(channel);
    }

    // After each minute a round of polling gives every cell its opportunity.
    bool minutes(int count)
    {
        for (int i = 0; i < count; ++i) {
            DrivenClock::advance(60000);
            if (!station->round()) {
                return false;
            }
        }
        return true;
    }

private slots:
    void aRisingRampMinuteByMinute()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        // In the very millisecond of the start nothing is due yet.
        QVERIFY(station->round());
        QVERIFY(station->setPoints.isEmpty());

        DrivenClock::advance(1);
        const QByteArrayList values{"0120.0", "0140.0", "0160.0", "0180.0", "0200.0"};
        const QStringList shown{"120"_s, "140"_s, "160"_s, "180"_s, "200"_s};
        for (int step = 0; step < 5; ++step) {
            QVERIFY(station->isRamping(0));
            QVERIFY(station->round());
            QCOMPARE(station->setPoints, messages(0, values.mid(0, step + 1)));
            QCOMPARE(station->text(cell("SDeg", 0)), shown[step]);
            // A minute after the last one was due, to the millisecond, the next is not; one later it is.
            DrivenClock::advance(59999);
            QVERIFY(station->round());
            QCOMPARE(station->setPoints.size(), step + 1);
            DrivenClock::advance(1);
        }
        QVERIFY(!station->isRamping(0));
        QVERIFY(minutes(10));
        QCOMPARE(station->setPoints.size(), 5);
    }

    void aFallingRamp()
    {
        QVERIFY(start(8, 200.0, "-50"_s, "4"_s));
        QVERIFY(minutes(8));
        QCOMPARE(station->setPoints, messages(8, {"0137.5", "0075.0", "0012.5", "-050.0"}));
        QCOMPARE(station->text(cell("SDeg", 8)), "-50"_s);
    }

    void theMessageByteForByte()
    {
        QVERIFY(start(4, 100.0, "200"_s, "5"_s));
        DrivenClock::advance(1);
        QVERIFY(station->round());
        QCOMPARE(station->setPoints.size(), 1);
        QCOMPARE(station->setPoints.first().toHex().toUpper(), QByteArray("043035025331303132302E30037F0A"));
    }

    void everyChannelShowsItsOwnSetPoint()
    {
        QVERIFY(station->open() && station->round());
        QStringList targets;
        for (int channel = 0; channel < Channels::count; ++channel) {
            targets += QString::number(30 + channel);
            station->pressRun(channel, targets.last(), "1"_s);
        }
        DrivenClock::advance(1);
        QVERIFY(station->round() && station->round());
        for (int channel = 0; channel < Channels::count; ++channel) {
            QCOMPARE(station->text(cell("SDeg", channel)), targets[channel]);
        }
    }

    void aSetPointIsShownWithSixDigits()
    {
        QVERIFY(start(3, 1200.0, "1234.5678"_s, "1"_s));
        QVERIFY(minutes(1));
        QCOMPARE(station->text(cell("SDeg", 3)), "1234.57"_s);
        QCOMPARE(station->setPoints, messages(3, {"1234.6"}));
    }

    void fourHoursEndOnTheTarget()
    {
        QVERIFY(start(0, 25.0, "1000"_s, "240"_s));
        for (int i = 0; i < 300 && station->isRamping(0); ++i) {
            QVERIFY(minutes(1));
        }
        QVERIFY(!station->isRamping(0));
        QCOMPARE(station->setPoints.size(), 240);
        QCOMPARE(station->setPoints.first(), Wire::setPoint(0, "0029.1"));
        QCOMPARE(station->setPoints.last(), Wire::setPoint(0, "1000.0"));
    }

    void setPointsThatFellBehindAreCaughtUpOneARound()
    {
        QVERIFY(start(0, 100.0, "300"_s, "10"_s));
        DrivenClock::advance(3 * 60000 + 1);
        for (int caughtUp = 1; caughtUp <= 4; ++caughtUp) {
            QVERIFY(station->round());
            QCOMPARE(station->setPoints.size(), caughtUp);
        }
        // Level with the grid: no more until the next minute.
        QVERIFY(station->round());
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0", "0160.0", "0180.0"}));
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints.last(), Wire::setPoint(0, "0200.0"));
    }

    void aTargetEditedDownEndsTheRampThere()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        QVERIFY(minutes(1));
        station->type(cell("TDeg", 0), "150"_s);
        QVERIFY(minutes(5));
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0", "0150.0"}));
        QVERIFY(!station->isRamping(0));
    }

    void aTargetEditedUpProlongsTheRamp()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        QVERIFY(minutes(1));
        station->type(cell("TDeg", 0), "230"_s);
        QVERIFY(minutes(10));
        QCOMPARE(station->setPoints,
            messages(0, {"0120.0", "0140.0", "0160.0", "0180.0", "0200.0", "0220.0", "0230.0"}));
    }

    void aTargetMadeUnreadableCountsAsZero()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        QVERIFY(minutes(1));
        station->type(cell("TDeg", 0), "2oo"_s);
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0000.0"}));
        QVERIFY(!station->isRamping(0));
    }

    void theDurationIsReadOnlyAtTheStart()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        station->type(cell("DTime", 0), "0"_s);
        QVERIFY(minutes(2));
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0"}));
        QVERIFY(station->statusBar().isEmpty());
    }

    void withoutARateTheSetPointIsRepeatedUntilStopped()
    {
        QVERIFY(start(0, 100.0, "100"_s, "5"_s));
        QVERIFY(minutes(20));
        QVERIFY(station->isRamping(0));
        QCOMPARE(station->setPoints.size(), 20);
        // Without a direction there is no limit either: an edited target changes nothing.
        station->type(cell("TDeg", 0), "50"_s);
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints.count(Wire::setPoint(0, "0100.0")), 21);
        station->click(cell("RunT", 0));
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints.size(), 21);
    }

    void aSecondPressStops()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        QVERIFY(minutes(1));
        station->click(cell("RunT", 0));
        QVERIFY(!station->isRamping(0));
        QVERIFY(minutes(2));
        QCOMPARE(station->setPoints.size(), 1);
        // A third press starts anew, from what is measured now.
        station->answers[0] = Wire::reading(110.0);
        QVERIFY(station->round());
        station->click(cell("RunT", 0));
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0128.0"}));
    }

    void twoCellsRampSideBySide()
    {
        Station::storeInUse({1, 6});
        station->answers[1] = Wire::reading(100.0);
        station->answers[6] = Wire::reading(500.0);
        QVERIFY(station->open() && station->round());
        QVERIFY(start(1, 100.0, "160"_s, "3"_s));
        QVERIFY(start(6, 500.0, "300"_s, "2"_s));
        QVERIFY(minutes(5));
        QList<QByteArray> sent[2];
        for (const QByteArray& message : qAsConst(station->setPoints)) {
            sent[message[2] == '2' ? 0 : 1].append(message);
        }
        QCOMPARE(sent[0], messages(1, {"0120.0", "0140.0", "0160.0"}));
        QCOMPARE(sent[1], messages(6, {"0400.0", "0300.0"}));
        // Reading goes on between the set points.
        QVERIFY(station->reads.count(1) >= 5 && station->reads.count(6) >= 5);
    }

    void aCellTakenOutOfUseRampsOn()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        QVERIFY(minutes(1));
        station->click(cell("TCActive", 0));
        QVERIFY(station->isRamping(0));
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0"}));
        // Its button is dead until it is back in use.
        station->click(cell("RunT", 0));
        QVERIFY(station->isRamping(0));
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints.size(), 3);
        station->click(cell("TCActive", 0));
        station->click(cell("RunT", 0));
        QVERIFY(!station->isRamping(0));
    }

    void switchedOffRampsStandStillAndResumeOnTheirGrid()
    {
        QVERIFY(start(0, 100.0, "200"_s, "5"_s));
        QVERIFY(minutes(1));
        station->togglePolling();
        DrivenClock::advance(2 * 60000);
        station->tick(500);
        QVERIFY(station->adapter.expectNothing());
        QCOMPARE(station->setPoints.size(), 1);
        station->togglePolling();
        for (int i = 0; i < 5; ++i) {
            QVERIFY(station->round());
        }
        // The two that fell due meanwhile are caught up; the fourth waits for its minute.
        QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0", "0160.0"}));
        QVERIFY(minutes(1));
        QCOMPARE(station->setPoints.size(), 4);
    }
};

NELVO_TEST_MAIN(CellRampTest)
#include "cellramp.moc"
