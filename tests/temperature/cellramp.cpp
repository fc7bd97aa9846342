// Ramps of many minutes on a driven clock: what the controllers get, and when.

#include "support/stationfixture.h"
#include "support/testmain.h"

class CellRampTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { station = std::make_unique<StationFixture>(); }
    void cleanup() { station.reset(); }

    void aRisingRampMinuteByMinute();
    void aFallingRamp();
    void theMessageByteForByte();
    void fourHoursEndOnTheTarget();
    void setPointsThatFellBehindAreCaughtUpOneARound();
    void aTargetEditedDownEndsTheRampThere();
    void aTargetEditedUpProlongsTheRamp();
    void aTargetMadeUnreadableCountsAsZero();
    void theDurationIsReadOnlyAtTheStart();
    void withoutARateTheSetPointIsRepeatedUntilStopped();
    void aSecondPressStops();
    void twoCellsRampSideBySide();
    void aCellTakenOutOfUseRampsOn();
    void switchedOffRampsStandStillAndResumeOnTheirGrid();

private:
    bool start(int channel, double current, const QString& target, const QString& duration);
    bool minute();
    QString cell(const QString& row, int channel) const
    {
        return station->text(QStringLiteral("%1%2").arg(row).arg(channel + 1, 2, 10, QLatin1Char('0')));
    }
    bool isRunning(int channel) const
    {
        return cell(QStringLiteral("RunT"), channel) == QLatin1String("Stop");
    }

    std::unique_ptr<StationFixture> station;
};

namespace {

QList<QByteArray> messages(int channel, const QByteArrayList& values)
{
    QList<QByteArray> list;
    for (const QByteArray& value : values) {
        list.append(setPointBytes(channel, value).chopped(1));
    }
    return list;
}

} // namespace

bool CellRampTest::start(int channel, double current, const QString& target, const QString& duration)
{
    if (!station->window) {
        StationFixture::storeInUse({channel});
        station->answers[channel] = reading(current);
        if (!station->open() || !station->round()) {
            return false;
        }
    }
    const QString number = QStringLiteral("%1").arg(channel + 1, 2, 10, QLatin1Char('0'));
    station->type(QStringLiteral("TDeg") + number, target);
    station->type(QStringLiteral("DTime") + number, duration);
    station->click(QStringLiteral("RunT") + number);
    return isRunning(channel);
}

// A minute goes by; a round of polling gives every cell its opportunity.
bool CellRampTest::minute()
{
    DrivenClock::advance(60000);
    return station->round();
}

void CellRampTest::aRisingRampMinuteByMinute()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    // In the very millisecond of the start nothing is due yet.
    QVERIFY(station->round());
    QVERIFY(station->setPoints.isEmpty());

    DrivenClock::advance(1);
    const QByteArrayList values{"0120.0", "0140.0", "0160.0", "0180.0", "0200.0"};
    const QStringList shown{QStringLiteral("120"), QStringLiteral("140"), QStringLiteral("160"),
        QStringLiteral("180"), QStringLiteral("200")};
    for (int step = 0; step < 5; ++step) {
        QVERIFY(isRunning(0));
        QVERIFY(station->round());
        QCOMPARE(station->setPoints, messages(0, values.mid(0, step + 1)));
        QCOMPARE(cell(QStringLiteral("SDeg"), 0), shown[step]);
        // A minute after the last one was due, to the millisecond, the next is not; one later it is.
        DrivenClock::advance(59999);
        QVERIFY(station->round());
        QCOMPARE(station->setPoints.size(), step + 1);
        DrivenClock::advance(1);
    }
    QVERIFY(!isRunning(0));
    QCOMPARE(
        station->style(QStringLiteral("RunT01")), QStringLiteral("background-color: rgb(185, 185, 105);"));
    for (int i = 0; i < 10; ++i) {
        QVERIFY(minute());
    }
    QCOMPARE(station->setPoints.size(), 5);
}

void CellRampTest::aFallingRamp()
{
    QVERIFY(start(8, 200.0, QStringLiteral("-50"), QStringLiteral("4")));
    for (int i = 0; i < 8; ++i) {
        QVERIFY(minute());
    }
    QCOMPARE(station->setPoints, messages(8, {"0137.5", "0075.0", "0012.5", "-050.0"}));
    QCOMPARE(cell(QStringLiteral("SDeg"), 8), QStringLiteral("-50"));
}

void CellRampTest::theMessageByteForByte()
{
    QVERIFY(start(4, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    DrivenClock::advance(1);
    QVERIFY(station->round());
    QCOMPARE(station->setPoints.size(), 1);
    QCOMPARE(station->setPoints.first().toHex().toUpper(), QByteArray("043035025331303132302E30037F"));
}

void CellRampTest::fourHoursEndOnTheTarget()
{
    QVERIFY(start(0, 25.0, QStringLiteral("1000"), QStringLiteral("240")));
    for (int i = 0; i < 300 && isRunning(0); ++i) {
        QVERIFY(minute());
    }
    QVERIFY(!isRunning(0));
    QCOMPARE(station->setPoints.size(), 240);
    QCOMPARE(station->setPoints.first(), messages(0, {"0029.1"}).first());
    QCOMPARE(station->setPoints.last(), messages(0, {"1000.0"}).first());
}

void CellRampTest::setPointsThatFellBehindAreCaughtUpOneARound()
{
    QVERIFY(start(0, 100.0, QStringLiteral("300"), QStringLiteral("10")));
    DrivenClock::advance(3 * 60000 + 1);
    for (int caughtUp = 1; caughtUp <= 4; ++caughtUp) {
        QVERIFY(station->round());
        QCOMPARE(station->setPoints.size(), caughtUp);
    }
    // Level with the grid: no more until the next minute.
    QVERIFY(station->round());
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0", "0160.0", "0180.0"}));
    QVERIFY(minute());
    QCOMPARE(station->setPoints.last(), messages(0, {"0200.0"}).first());
}

void CellRampTest::aTargetEditedDownEndsTheRampThere()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    QVERIFY(minute());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("150"));
    for (int i = 0; i < 5; ++i) {
        QVERIFY(minute());
    }
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0", "0150.0"}));
    QVERIFY(!isRunning(0));
}

void CellRampTest::aTargetEditedUpProlongsTheRamp()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    QVERIFY(minute());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("230"));
    for (int i = 0; i < 10; ++i) {
        QVERIFY(minute());
    }
    QCOMPARE(station->setPoints,
        messages(0, {"0120.0", "0140.0", "0160.0", "0180.0", "0200.0", "0220.0", "0230.0"}));
}

void CellRampTest::aTargetMadeUnreadableCountsAsZero()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    QVERIFY(minute());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("2oo"));
    QVERIFY(minute());
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0000.0"}));
    QVERIFY(!isRunning(0));
}

void CellRampTest::theDurationIsReadOnlyAtTheStart()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    station->type(QStringLiteral("DTime01"), QStringLiteral("0"));
    QVERIFY(minute());
    QVERIFY(minute());
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0"}));
    QVERIFY(station->statusBar().isEmpty());
}

void CellRampTest::withoutARateTheSetPointIsRepeatedUntilStopped()
{
    QVERIFY(start(0, 100.0, QStringLiteral("100"), QStringLiteral("5")));
    for (int i = 0; i < 20; ++i) {
        QVERIFY(minute());
    }
    QVERIFY(isRunning(0));
    QCOMPARE(station->setPoints.size(), 20);
    // Without a direction there is no limit either: an edited target changes nothing.
    station->type(QStringLiteral("TDeg01"), QStringLiteral("50"));
    QVERIFY(minute());
    QCOMPARE(station->setPoints.count(messages(0, {"0100.0"}).first()), 21);
    station->click(QStringLiteral("RunT01"));
    QVERIFY(minute());
    QCOMPARE(station->setPoints.size(), 21);
}

void CellRampTest::aSecondPressStops()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    QVERIFY(minute());
    station->click(QStringLiteral("RunT01"));
    QVERIFY(!isRunning(0));
    QVERIFY(minute());
    QVERIFY(minute());
    QCOMPARE(station->setPoints.size(), 1);
    // A third press starts anew, from what is measured now.
    station->answers[0] = reading(110.0);
    QVERIFY(station->round());
    station->click(QStringLiteral("RunT01"));
    QVERIFY(minute());
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0128.0"}));
}

void CellRampTest::twoCellsRampSideBySide()
{
    StationFixture::storeInUse({1, 6});
    station->answers[1] = reading(100.0);
    station->answers[6] = reading(500.0);
    QVERIFY(station->open() && station->round());
    QVERIFY(start(1, 100.0, QStringLiteral("160"), QStringLiteral("3")));
    QVERIFY(start(6, 500.0, QStringLiteral("300"), QStringLiteral("2")));
    for (int i = 0; i < 5; ++i) {
        QVERIFY(minute());
    }
    QList<QByteArray> sent[2];
    for (const QByteArray& message : qAsConst(station->setPoints)) {
        sent[message[2] == '2' ? 0 : 1].append(message);
    }
    QCOMPARE(sent[0], messages(1, {"0120.0", "0140.0", "0160.0"}));
    QCOMPARE(sent[1], messages(6, {"0400.0", "0300.0"}));
    // Reading goes on between the set points.
    QVERIFY(station->reads.count(1) >= 5 && station->reads.count(6) >= 5);
}

void CellRampTest::aCellTakenOutOfUseRampsOn()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    QVERIFY(minute());
    station->click(QStringLiteral("TCActive01"));
    QVERIFY(isRunning(0));
    QVERIFY(minute());
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0"}));
    // Its button is dead until it is back in use.
    station->click(QStringLiteral("RunT01"));
    QVERIFY(isRunning(0));
    QVERIFY(minute());
    QCOMPARE(station->setPoints.size(), 3);
    station->click(QStringLiteral("TCActive01"));
    station->click(QStringLiteral("RunT01"));
    QVERIFY(!isRunning(0));
}

void CellRampTest::switchedOffRampsStandStillAndResumeOnTheirGrid()
{
    QVERIFY(start(0, 100.0, QStringLiteral("200"), QStringLiteral("5")));
    QVERIFY(minute());
    QTest::keyClick(station->widget(QStringLiteral("TMPCtrlActive")), Qt::Key_Space);
    DrivenClock::advance(2 * 60000);
    station->tick(500);
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(station->setPoints.size(), 1);
    QTest::keyClick(station->widget(QStringLiteral("TMPCtrlActive")), Qt::Key_Space);
    for (int i = 0; i < 5; ++i) {
        QVERIFY(station->round());
    }
    // The two that fell due meanwhile are caught up; the fourth waits for its minute.
    QCOMPARE(station->setPoints, messages(0, {"0120.0", "0140.0", "0160.0"}));
    QVERIFY(minute());
    QCOMPARE(station->setPoints.size(), 4);
}

NELVO_TEST_MAIN(CellRampTest)

#include "cellramp.moc"
