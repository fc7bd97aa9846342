// Polling as the operator sees it: nine temperatures, read one after the other.

#include "support/stationfixture.h"
#include "support/testmain.h"

class CellPollingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { station = std::make_unique<StationFixture>(); }
    void cleanup() { station.reset(); }

    void channelsAreReadInOrder();
    void measuredValuesAreShown();
    void everyChannelShowsItsOwnError();
    void aChannelNotInUseIsNotReadAndShowsDashes();
    void aChannelTakenOutOfUseIsSkippedFromThen();
    void aRoundOfRepliesAtOnceTakesFourTicksAChannel();
    void nothingIsSentBeforeTheFirstTick();

    void switchedOffNothingIsRead();
    void switchedOffAReplyIsKeptForLater();
    void switchedOffTheTimeOutStandsStill();

    void elapsedTimeIsShownEveryTenTicks();
    void elapsedTimeStandsStillWhileSwitchedOff();
    void elapsedTimeStaysWhenARampIsStopped();

private:
    QString cell(const QString& row, int channel) const
    {
        return station->text(QStringLiteral("%1%2").arg(row).arg(channel + 1, 2, 10, QLatin1Char('0')));
    }
    void toggleMaster() { QTest::keyClick(station->widget(QStringLiteral("TMPCtrlActive")), Qt::Key_Space); }

    std::unique_ptr<StationFixture> station;
};

namespace {

const QByteArray toTemperatures = "++addr 1\n++eos 0\n++eoi 1\n";

} // namespace

void CellPollingTest::channelsAreReadInOrder()
{
    QVERIFY(station->open());
    QVERIFY(station->round());
    QVERIFY(station->round());
    QCOMPARE(station->reads, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 0, 1, 2, 3, 4, 5, 6, 7, 8}));
    QVERIFY(station->setPoints.isEmpty());
}

void CellPollingTest::measuredValuesAreShown()
{
    for (int channel = 0; channel < 9; ++channel) {
        station->answers[channel] = reading(100.25 + 111 * channel);
    }
    QVERIFY(station->open());
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("0.0"));
    QVERIFY(station->round());
    for (int channel = 0; channel < 9; ++channel) {
        QCOMPARE(cell(QStringLiteral("CDeg"), channel), QString::number(100.25 + 111 * channel));
    }
    station->answers[4] = "01M 0512.3E";
    QVERIFY(station->round());
    QCOMPARE(cell(QStringLiteral("CDeg"), 4), QStringLiteral("512.3"));
}

void CellPollingTest::everyChannelShowsItsOwnError()
{
    station->answers[2] = "ER";
    station->answers[7] = "ER";
    QVERIFY(station->open());
    QVERIFY(station->round());
    for (int channel = 0; channel < 9; ++channel) {
        const bool hasError = channel == 2 || channel == 7;
        QCOMPARE(cell(QStringLiteral("CDeg"), channel),
            hasError ? QStringLiteral("----.-") : QStringLiteral("25"));
    }
    station->answers.remove(2);
    QVERIFY(station->round());
    QCOMPARE(cell(QStringLiteral("CDeg"), 2), QStringLiteral("25"));
}

void CellPollingTest::aChannelNotInUseIsNotReadAndShowsDashes()
{
    StationFixture::storeInUse({1, 3, 8});
    QVERIFY(station->open());
    QVERIFY(station->round());
    QVERIFY(station->round());
    QCOMPARE(station->reads, (QList<int>{1, 3, 8, 1, 3, 8}));
    for (int channel = 0; channel < 9; ++channel) {
        const bool isInUse = channel == 1 || channel == 3 || channel == 8;
        QCOMPARE(
            cell(QStringLiteral("CDeg"), channel), isInUse ? QStringLiteral("25") : QStringLiteral("----.-"));
    }
}

void CellPollingTest::aChannelTakenOutOfUseIsSkippedFromThen()
{
    StationFixture::storeInUse({0, 1});
    QVERIFY(station->open());
    QVERIFY(station->round());
    station->click(QStringLiteral("TCActive01"));
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("25"));
    QVERIFY(station->round());
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("----.-"));
    QCOMPARE(station->reads, (QList<int>{0, 1, 1}));
    station->click(QStringLiteral("TCActive01"));
    QVERIFY(station->round());
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("25"));
}

void CellPollingTest::aRoundOfRepliesAtOnceTakesFourTicksAChannel()
{
    QVERIFY(station->open());
    QByteArray before = toTemperatures;
    for (int channel = 0; channel < 9; ++channel) {
        station->tick(); // read
        QVERIFY(station->adapter.expect(before + readBytes(channel)));
        station->adapter.send(reading(50.0) + "\r\n");
        QCOMPARE(cell(QStringLiteral("CDeg"), channel), QStringLiteral("0.0"));
        station->tick(); // show
        QCOMPARE(cell(QStringLiteral("CDeg"), channel), QStringLiteral("50"));
        QCOMPARE(StationFixture::records(), 0);
        station->tick(2); // ramp step, next channel
        before.clear();
    }
    QCOMPARE(StationFixture::records(), 1);
}

void CellPollingTest::nothingIsSentBeforeTheFirstTick()
{
    QVERIFY(station->open());
    QVERIFY(station->adapter.expectNothing());
    station->tick();
    QVERIFY(station->adapter.expect(toTemperatures + readBytes(0)));
}

void CellPollingTest::switchedOffNothingIsRead()
{
    QVERIFY(station->open());
    toggleMaster();
    station->tick(1000);
    QVERIFY(station->adapter.expectNothing());
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("0.0"));
    toggleMaster();
    station->tick();
    QVERIFY(station->adapter.expect(toTemperatures + readBytes(0)));
}

void CellPollingTest::switchedOffAReplyIsKeptForLater()
{
    QVERIFY(station->open());
    station->tick();
    QVERIFY(station->adapter.expect(toTemperatures + readBytes(0)));
    toggleMaster();
    station->adapter.send(reading(77.0) + "\r\n");
    station->tick(100);
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("0.0"));
    toggleMaster();
    station->tick();
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("77"));
}

void CellPollingTest::switchedOffTheTimeOutStandsStill()
{
    QVERIFY(station->open());
    station->tick();
    toggleMaster();
    station->tick(1000);
    toggleMaster();
    station->tick(300);
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("0.0"));
    station->tick();
    QCOMPARE(cell(QStringLiteral("CDeg"), 0), QStringLiteral("----.-"));
}

void CellPollingTest::elapsedTimeIsShownEveryTenTicks()
{
    QVERIFY(station->open());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("40"));
    station->click(QStringLiteral("RunT01"));
    QCOMPARE(cell(QStringLiteral("ETime"), 0), QStringLiteral("0.0"));
    // The tick counter starts one short of a multiple of ten.
    station->tick();
    QCOMPARE(cell(QStringLiteral("ETime"), 0), QStringLiteral("   0.00"));

    QString shown = QStringLiteral("   0.00");
    for (int update = 1; update <= 65; ++update) { // past the counter's wrap at 300, twice
        DrivenClock::advance(90000);
        station->tick(9);
        QCOMPARE(cell(QStringLiteral("ETime"), 0), shown);
        station->tick();
        shown = QStringLiteral("%1").arg(update * 1.5, 7, 'f', 2);
        QCOMPARE(cell(QStringLiteral("ETime"), 0), shown);
    }
    QCOMPARE(shown, QStringLiteral("  97.50"));
    // The other cells have no ramp, and nothing to show.
    QCOMPARE(cell(QStringLiteral("ETime"), 1), QStringLiteral("0.0"));
}

void CellPollingTest::elapsedTimeStandsStillWhileSwitchedOff()
{
    QVERIFY(station->open());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("40"));
    station->click(QStringLiteral("RunT01"));
    station->tick();
    toggleMaster();
    DrivenClock::advance(600000);
    station->tick(100);
    QCOMPARE(cell(QStringLiteral("ETime"), 0), QStringLiteral("   0.00"));
    toggleMaster();
    station->tick(10);
    QCOMPARE(cell(QStringLiteral("ETime"), 0), QStringLiteral("  10.00"));
}

void CellPollingTest::elapsedTimeStaysWhenARampIsStopped()
{
    QVERIFY(station->open());
    station->type(QStringLiteral("TDeg01"), QStringLiteral("40"));
    station->click(QStringLiteral("RunT01"));
    DrivenClock::advance(150000);
    station->tick();
    QCOMPARE(cell(QStringLiteral("ETime"), 0), QStringLiteral("   2.50"));
    station->click(QStringLiteral("RunT01"));
    DrivenClock::advance(60000);
    station->tick(20);
    QCOMPARE(cell(QStringLiteral("ETime"), 0), QStringLiteral("   2.50"));
}

NELVO_TEST_MAIN(CellPollingTest)

#include "cellpolling.moc"
