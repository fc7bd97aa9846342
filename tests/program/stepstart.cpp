#include "program/programwindow.h"

#include "support/testmain.h"

#include <QStatusBar>
#include <QTimer>

/// What a step's start does to shutters and cells, and the player in real time.
class TestStepStart : public QObject
{
    Q_OBJECT

private slots:
    void shuttersFollowEveryStep();
    void wantedShuttersAreNotTouched();
    void rampLastsAsLongAsTheStep();
    void setPointGoesOverUnchanged();
    void zeroAndNegativeSetPointsLeaveTheChannelAlone();
    void runningRampIsStartedAnew();
    void channelNotInUseIsRampedToo();
    void tooFastARiseIsRefusedAndTheProgramGoesOn();
    void stopLeavesShuttersAndRamps();
    void shortProgramInRealTime();
    void endlessShortStepsLeaveTheWindowAlive();
};

void TestStepStart::shuttersFollowEveryStep()
{
    ProgramWindow table;
    for (int k = 0; k < 7; ++k) {
        table.enter(k, QStringLiteral("0.02"));
        table.shutter(k, k)->click();
    }
    table.shutter(6, 0)->click();
    table.forgetCommands();
    table.button("ProgRun")->click();
    QCOMPARE(table.play().size(), 7);
    QTRY_COMPARE(table.masks(), QByteArray("\x01\x02\x04\x08\x10\x20\x41"));
    QCOMPARE(table.button("CS01")->text(), QStringLiteral("Open"));
    QCOMPARE(table.button("CS06")->text(), QStringLiteral("Close"));
    QCOMPARE(table.button("CS07")->text(), QStringLiteral("Open"));
}

void TestStepStart::wantedShuttersAreNotTouched()
{
    ProgramWindow table;
    table.button("NS02")->click();
    table.enter(0, QStringLiteral("1"));
    table.shutter(0, 0)->click();
    table.button("ProgRun")->click();
    table.tick();
    QCOMPARE(table.button("CS01")->text(), QStringLiteral("Open"));
    QCOMPARE(table.button("NS01")->text(), QStringLiteral("Close"));
    QCOMPARE(table.button("NS02")->text(), QStringLiteral("Open"));
}

void TestStepStart::rampLastsAsLongAsTheStep()
{
    ProgramWindow table;
    table.enter(0, QStringLiteral("100"));
    for (int ch = 0; ch < 9; ++ch) {
        table.setPoint(0, ch)->setText(QString::number(10 + ch));
    }
    table.button("ProgRun")->click();
    table.tick();
    for (int ch = 0; ch < 9; ++ch) {
        const QByteArray number = QByteArray("0") + QByteArray::number(ch + 1);
        QCOMPARE(table.edit("TDeg" + number)->text(), QString::number(10 + ch));
        QCOMPARE(table.edit("DTime" + number)->text(), QStringLiteral("1.66667"));
        QCOMPARE(table.button("RunT" + number)->text(), QStringLiteral("Stop"));
    }
}

void TestStepStart::setPointGoesOverUnchanged()
{
    ProgramWindow table;
    table.enter(0, QStringLiteral("60"));
    table.setPoint(0, 0)->setText(QStringLiteral(" 0040.50"));
    table.button("ProgRun")->click();
    table.tick();
    QCOMPARE(table.edit("TDeg01")->text(), QStringLiteral(" 0040.50"));
    QCOMPARE(table.edit("DTime01")->text(), QStringLiteral("1"));
}

void TestStepStart::zeroAndNegativeSetPointsLeaveTheChannelAlone()
{
    ProgramWindow table;
    table.enter(0, QStringLiteral("60"));
    table.setPoint(0, 0)->setText(QStringLiteral("40"));
    table.enter(1, QStringLiteral("30"));
    table.setPoint(1, 1)->setText(QStringLiteral("-5"));
    table.setPoint(1, 2)->setText(QStringLiteral("warm"));
    table.setPoint(1, 3)->setText(QStringLiteral("inf"));
    table.button("ProgRun")->click();
    table.tick();
    table.tick(60001);
    QCOMPARE(table.marked(), QVector<int>({2}));
    // The ramp of the step before goes on.
    QCOMPARE(table.edit("TDeg01")->text(), QStringLiteral("40"));
    QCOMPARE(table.edit("DTime01")->text(), QStringLiteral("1"));
    QCOMPARE(table.button("RunT01")->text(), QStringLiteral("Stop"));
    for (const char* number : {"02", "03", "04"}) {
        QCOMPARE(table.edit(QByteArray("TDeg") + number)->text(), QStringLiteral("0.0"));
        QCOMPARE(table.edit(QByteArray("DTime") + number)->text(), QStringLiteral("10.0"));
        QCOMPARE(table.button(QByteArray("RunT") + number)->text(), QStringLiteral("Run"));
    }
}

void TestStepStart::runningRampIsStartedAnew()
{
    ProgramWindow table;
    table.enter(0, QStringLiteral("60"));
    table.setPoint(0, 0)->setText(QStringLiteral("40"));
    table.enter(1, QStringLiteral("120"));
    table.setPoint(1, 0)->setText(QStringLiteral("60"));
    table.button("ProgRun")->click();
    table.tick();
    table.tick(60001);
    QCOMPARE(table.edit("TDeg01")->text(), QStringLiteral("60"));
    QCOMPARE(table.edit("DTime01")->text(), QStringLiteral("2"));
    QCOMPARE(table.button("RunT01")->text(), QStringLiteral("Stop"));
}

void TestStepStart::channelNotInUseIsRampedToo()
{
    ProgramWindow table;
    table.button("TCActive03")->click();
    QCOMPARE(table.button("TCActive03")->text(), QStringLiteral("NotInUse"));
    table.enter(0, QStringLiteral("60"));
    table.setPoint(0, 2)->setText(QStringLiteral("40"));
    table.button("ProgRun")->click();
    table.tick();
    QCOMPARE(table.button("RunT03")->text(), QStringLiteral("Stop"));
    table.button("TCActive03")->click(); // the setting outlives the window
}

void TestStepStart::tooFastARiseIsRefusedAndTheProgramGoesOn()
{
    ProgramWindow table;
    table.enter(0, QStringLiteral("1"));
    table.setPoint(0, 0)->setText(QStringLiteral("40"));
    table.shutter(0, 0)->click();
    table.forgetCommands();
    table.button("ProgRun")->click();
    table.tick();
    QCOMPARE(table.window().statusBar()->currentMessage(),
        QStringLiteral(
            "The temperature rise up rate should be less than 50 deg-C per min for the cell [0:Be]."));
    QCOMPARE(table.button("RunT01")->text(), QStringLiteral("Run"));
    QTRY_COMPARE(table.masks(), QByteArray("\x01"));
    QCOMPARE(table.marked(), QVector<int>({1}));
}

void TestStepStart::stopLeavesShuttersAndRamps()
{
    ProgramWindow table;
    table.enter(0, QStringLiteral("60"));
    table.setPoint(0, 0)->setText(QStringLiteral("40"));
    table.shutter(0, 0)->click();
    table.button("ProgRun")->click();
    table.tick();
    table.forgetCommands();
    table.button("ProgRun")->click();
    QVERIFY(!table.isRunning());
    QCOMPARE(table.button("RunT01")->text(), QStringLiteral("Stop"));
    QCOMPARE(table.button("CS01")->text(), QStringLiteral("Open"));
    QVERIFY(table.adapter().expectNothing());
}

void TestStepStart::shortProgramInRealTime()
{
    ProgramWindow table(ProgramWindow::Time::Real);
    for (int k = 0; k < 3; ++k) {
        table.enter(k, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("2"));
        table.shutter(k, k)->click();
    }
    QElapsedTimer timer;
    timer.start();
    table.button("ProgRun")->click();
    QTRY_VERIFY(!table.isRunning());
    QVERIFY(timer.elapsed() >= 600);
    QTRY_VERIFY(table.masks().endsWith(QByteArray("\x01\x02\x04\x01\x02\x04")));
    QCOMPARE(table.label("DispTTime02"), QStringLiteral("   0.6"));
}

void TestStepStart::endlessShortStepsLeaveTheWindowAlive()
{
    ProgramWindow table(ProgramWindow::Time::Real);
    table.show();
    for (int k = 0; k < 200; ++k) {
        table.enter(k, QStringLiteral("0.001"), QString::number(k / 2), QStringLiteral("2147483647"));
    }
    table.button("ProgRun")->click();
    int idleTurns = 0;
    QTimer other;
    connect(&other, &QTimer::timeout, this, [&idleTurns] { ++idleTurns; });
    other.start(0);
    QTRY_VERIFY_WITH_TIMEOUT(idleTurns > 200 && table.masks().size() > 20, 60000);
    table.button("ProgRun")->click();
    QVERIFY(!table.isRunning());
}

NELVO_TEST_MAIN(TestStepStart)
#include "stepstart.moc"
