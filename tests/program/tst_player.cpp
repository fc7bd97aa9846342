#include "program/programwindow.h"

#include "support/testmain.h"

namespace {

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");

} // namespace

/// The walk of the player through the table, as its labels show it.
class TestPlayer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void emptyTableStopsOnTheFirstTick();
    void startShowsRunningAndStartsOnTheFirstTick();
    void stepEndsOnceItsTimeHasPassed();
    void labelsShowTimesWithOneDecimal();
    void groupIsPlayedThreeTimes();
    void timesOfALaterRowHasNoEffect();
    void neighboursWithTheSameGroupAreOneBlock();
    void repeatCountBelowOneRunsOnce_data();
    void repeatCountBelowOneRunsOnce();
    void lastRowIsPlayedButNotCounted();
    void groupAtTheEndOfTheTableIsNotRepeated();
    void textThatIsNoNumberEndsTheProgram();
    void checkButtonShowsTheTotal();
    void checkWhileRunningLeavesTheRunAlone();
    void checkOfHugeRepeatsAnswersAtOnce();
    void holdPointWaitsForTheOperator();
    void pauseCountsTowardsTheStep();
    void pauseShowsAndDoesNothingWhenIdle();
    void stopKeepsTheMarkAndRestartBeginsAnew();
    void stopWhilePausedThenStartRunsUnpaused();
    void oneTickStartsOneStepHoweverLate();
    void rowsAreReadWhenTheyAreReached();
    void repeatCountIsReadWhenTheBlockIsEntered();

private:
    ProgramWindow& table() { return *fresh; }
    void run() { table().button("ProgRun")->click(); }
    QString label(const char* name) { return table().label(name); }

    std::unique_ptr<ProgramWindow> fresh;
};

void TestPlayer::init()
{
    fresh = std::make_unique<ProgramWindow>();
}

void TestPlayer::cleanup()
{
    fresh.reset();
}

void TestPlayer::emptyTableStopsOnTheFirstTick()
{
    run();
    QVERIFY(table().isRunning());
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.0"));
    table().tick();
    QVERIFY(!table().isRunning());
    QCOMPARE(table().button("ProgRun")->styleSheet(), olive);
    QCOMPARE(table().marked(), QVector<int>());
}

void TestPlayer::startShowsRunningAndStartsOnTheFirstTick()
{
    table().enter(0, QStringLiteral("5"));
    run();
    QCOMPARE(table().button("ProgRun")->text(), QStringLiteral("Stop"));
    QCOMPARE(table().button("ProgRun")->styleSheet(), yellow);
    QCOMPARE(table().button("ProgPause")->text(), QStringLiteral("Pause"));
    QCOMPARE(table().button("ProgPause")->styleSheet(), olive);
    QCOMPARE(label("DispCount01"), QStringLiteral("   1"));
    QCOMPARE(label("DispCount02"), QStringLiteral("   1"));
    QCOMPARE(table().marked(), QVector<int>());
    table().tick();
    QCOMPARE(table().marked(), QVector<int>({1}));
    QCOMPARE(label("DispTime01"), QStringLiteral("0"));
    QCOMPARE(label("DispTime02"), QStringLiteral("   5.0"));
}

void TestPlayer::stepEndsOnceItsTimeHasPassed()
{
    table().enter(0, QStringLiteral("0.5"));
    table().enter(1, QStringLiteral("5"));
    run();
    table().tick();
    table().tick(500);
    QCOMPARE(table().marked(), QVector<int>({1})); // exactly its time is not over
    table().tick(1);
    QCOMPARE(table().marked(), QVector<int>({2}));
}

void TestPlayer::labelsShowTimesWithOneDecimal()
{
    table().enter(0, QStringLiteral("12.5"));
    table().enter(1, QStringLiteral("1234.56"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("1247.1"));
    table().tick(10);
    table().tick(1260);
    QCOMPARE(label("DispTime01"), QStringLiteral("   1.3"));
    QCOMPARE(label("DispTTime01"), QStringLiteral("   1.3"));
    table().tick(20000);
    QCOMPARE(label("DispTime01"), QStringLiteral("0"));
    QCOMPARE(label("DispTime02"), QStringLiteral("1234.6"));
    QCOMPARE(label("DispTTime01"), QStringLiteral("  21.3"));
    table().tick(100000);
    QCOMPARE(label("DispTime01"), QStringLiteral(" 100.0"));
    QCOMPARE(label("DispTTime01"), QStringLiteral(" 121.3"));
}

void TestPlayer::groupIsPlayedThreeTimes()
{
    table().enter(0, QStringLiteral("0.5"), QStringLiteral("A"), QStringLiteral("3"));
    table().enter(1, QStringLiteral("0.25"), QStringLiteral("A"));
    table().enter(2, QStringLiteral("1.25"), QStringLiteral("A"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   6.0"));
    QStringList counts;
    QVector<int> steps;
    for (int i = 0; i < 10000 && table().isRunning(); ++i) {
        table().tick();
        if (counts.isEmpty() || counts.last() != label("DispCount01") + label("DispCount02")) {
            counts.append(label("DispCount01") + label("DispCount02"));
        }
        if (table().isRunning() && label("DispTime01") == QLatin1String("0")) {
            steps += table().marked();
        }
    }
    QCOMPARE(steps, QVector<int>({1, 2, 3, 1, 2, 3, 1, 2, 3}));
    // At the end the next block, of the row that ends the program, has been entered.
    QCOMPARE(counts,
        QStringList({QStringLiteral("   1   3"), QStringLiteral("   2   3"), QStringLiteral("   3   3"),
            QStringLiteral("   1   1")}));
}

void TestPlayer::timesOfALaterRowHasNoEffect()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("1"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("9"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.2"));
    QCOMPARE(table().play(), QVector<int>({1, 2}));
}

void TestPlayer::neighboursWithTheSameGroupAreOneBlock()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("2"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("3"));
    table().enter(2, QStringLiteral("0.1"), QStringLiteral("a"), QStringLiteral("2"));
    run();
    QCOMPARE(table().play(), QVector<int>({1, 2, 1, 2, 3, 3}));
}

void TestPlayer::repeatCountBelowOneRunsOnce_data()
{
    QTest::addColumn<QString>("times");
    for (const char* times : {"0", "-5", "many", ""}) {
        QTest::newRow(times) << QString::fromLatin1(times);
    }
}

void TestPlayer::repeatCountBelowOneRunsOnce()
{
    QFETCH(const QString, times);
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), times);
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("B"), QStringLiteral("2"));
    run();
    QCOMPARE(label("DispCount01"), QStringLiteral("----"));
    QCOMPARE(label("DispCount02"), QStringLiteral("----"));
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.3"));
    QCOMPARE(table().play(), QVector<int>({1, 2, 2}));
}

void TestPlayer::lastRowIsPlayedButNotCounted()
{
    for (int k = 0; k < 200; ++k) {
        table().enter(k, QStringLiteral("0.01"));
    }
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   2.0")); // 1.99
    const QVector<int> steps = table().play();
    QCOMPARE(steps.size(), 200);
    QCOMPARE(steps.last(), 200);
    QVERIFY(!table().isRunning());
    QCOMPARE(table().marked(), QVector<int>());
}

void TestPlayer::groupAtTheEndOfTheTableIsNotRepeated()
{
    for (int k = 0; k < 200; ++k) {
        table().enter(k, QStringLiteral("0.01"), QStringLiteral("A"), QStringLiteral("5"));
    }
    run();
    QCOMPARE(table().play().size(), 200);
}

void TestPlayer::textThatIsNoNumberEndsTheProgram()
{
    table().enter(0, QStringLiteral("0.1"));
    table().enter(1, QStringLiteral("a while"));
    table().enter(2, QStringLiteral("0.1"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.1"));
    QCOMPARE(table().play(), QVector<int>({1}));
}

void TestPlayer::checkButtonShowsTheTotal()
{
    table().enter(0, QStringLiteral("10"), QStringLiteral("A"), QStringLiteral("4"));
    table().enter(1, QStringLiteral("-1"), QStringLiteral("A"));
    table().enter(2, QStringLiteral("2.5"));
    QTest::mouseClick(table().button("ProgCheck"), Qt::LeftButton);
    QCOMPARE(label("DispTTime02"), QStringLiteral("  42.5"));
    QVERIFY(!table().isRunning());
}

void TestPlayer::checkWhileRunningLeavesTheRunAlone()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("3"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("B"));
    run();
    QCOMPARE(table().play(15), QVector<int>({1, 1}));
    QTest::mouseClick(table().button("ProgCheck"), Qt::LeftButton);
    QCOMPARE(label("DispCount01"), QStringLiteral("   2"));
    QCOMPARE(table().play(), QVector<int>({1, 2}));
}

void TestPlayer::checkOfHugeRepeatsAnswersAtOnce()
{
    for (int k = 0; k < 199; ++k) {
        table().enter(k, QStringLiteral("1"), QString::number(k), QStringLiteral("2147483647"));
    }
    QElapsedTimer timer;
    timer.start();
    table().button("ProgCheck")->click();
    QCOMPARE(label("DispTTime02"), QStringLiteral("427349245753.0"));
    for (int k = 0; k < 199; ++k) {
        table().time(k)->setText(QStringLiteral("-1"));
    }
    table().button("ProgCheck")->click();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.0"));
    QVERIFY(timer.elapsed() < 2000);
}

void TestPlayer::holdPointWaitsForTheOperator()
{
    table().enter(0, QStringLiteral("-1"));
    table().shutter(0, 2)->click();
    table().setPoint(0, 1)->setText(QStringLiteral("40"));
    table().enter(1, QStringLiteral("5"));
    table().forgetCommands();
    run();
    table().tick();
    QTRY_COMPARE(table().masks(), QByteArray("\x04"));
    QVERIFY(table().isWaiting());
    QCOMPARE(table().button("ProgPause")->styleSheet(), yellow);
    QCOMPARE(table().marked(), QVector<int>({1}));
    QCOMPARE(label("DispTime02"), QStringLiteral("  -1.0"));
    QCOMPARE(table().edit("TDeg02")->text(), QStringLiteral("0.0")); // no temperatures
    QCOMPARE(table().button("RunT02")->text(), QStringLiteral("Run"));

    for (int i = 0; i < 100; ++i) {
        table().tick(1000);
    }
    QCOMPARE(table().marked(), QVector<int>({1}));
    QCOMPARE(label("DispTime01"), QStringLiteral("0"));

    QTest::mouseClick(table().button("ProgPause"), Qt::LeftButton);
    QCOMPARE(table().button("ProgPause")->text(), QStringLiteral("Pause"));
    QCOMPARE(table().button("ProgPause")->styleSheet(), olive);
    table().tick();
    QCOMPARE(table().marked(), QVector<int>({2}));
}

void TestPlayer::pauseCountsTowardsTheStep()
{
    table().enter(0, QStringLiteral("10"));
    table().enter(1, QStringLiteral("5"));
    run();
    table().tick();
    table().tick(2000);
    QTest::mouseClick(table().button("ProgPause"), Qt::LeftButton);
    QVERIFY(table().isWaiting());
    table().tick(30000);
    QCOMPARE(table().marked(), QVector<int>({1}));
    QCOMPARE(label("DispTime01"), QStringLiteral("   2.0"));
    QTest::mouseClick(table().button("ProgPause"), Qt::LeftButton);
    table().tick();
    QCOMPARE(table().marked(), QVector<int>({2}));
    QCOMPARE(label("DispTTime01"), QStringLiteral("  32.0"));
}

void TestPlayer::pauseShowsAndDoesNothingWhenIdle()
{
    QTest::mouseClick(table().button("ProgPause"), Qt::LeftButton);
    QCOMPARE(table().button("ProgPause")->text(), QStringLiteral("Pause"));
    QCOMPARE(table().button("ProgPause")->styleSheet(), olive);
}

void TestPlayer::stopKeepsTheMarkAndRestartBeginsAnew()
{
    table().enter(0, QStringLiteral("1"), QStringLiteral("A"), QStringLiteral("3"));
    table().enter(1, QStringLiteral("1"), QStringLiteral("B"));
    run();
    table().tick();
    table().tick(1500);
    QCOMPARE(label("DispCount01"), QStringLiteral("   2"));
    run();
    QVERIFY(!table().isRunning());
    QCOMPARE(table().marked(), QVector<int>({1}));
    QCOMPARE(label("DispCount01"), QStringLiteral("   2"));
    run();
    QCOMPARE(label("DispCount01"), QStringLiteral("   1"));
    QCOMPARE(table().play(), QVector<int>({1, 1, 1, 2}));
}

void TestPlayer::stopWhilePausedThenStartRunsUnpaused()
{
    table().enter(0, QStringLiteral("1"));
    run();
    table().tick();
    table().button("ProgPause")->click();
    run();
    QVERIFY(!table().isRunning());
    QVERIFY(table().isWaiting()); // stopping leaves everything but the run as it is
    run();
    QVERIFY(!table().isWaiting());
    QCOMPARE(table().play(), QVector<int>({1}));
}

void TestPlayer::oneTickStartsOneStepHoweverLate()
{
    for (int k = 0; k < 5; ++k) {
        table().enter(k, QStringLiteral("0.001"));
    }
    run();
    for (int step = 1; step <= 5; ++step) {
        table().tick(60000);
        QCOMPARE(table().marked(), QVector<int>({step}));
    }
    table().tick(60000);
    QVERIFY(!table().isRunning());
}

void TestPlayer::rowsAreReadWhenTheyAreReached()
{
    table().enter(0, QStringLiteral("1"));
    table().enter(1, QStringLiteral("1"));
    run();
    table().tick();
    table().time(0)->setText(QStringLiteral("0.1")); // under way: its time was read
    table().tick(500);
    QCOMPARE(table().marked(), QVector<int>({1}));
    table().time(1)->setText(QStringLiteral("7"));
    table().shutter(1, 6)->click();
    table().forgetCommands();
    table().tick(600);
    QCOMPARE(label("DispTime02"), QStringLiteral("   7.0"));
    QTRY_COMPARE(table().masks(), QByteArray("\x40"));
    table().button("ProgClear")->click();
    table().tick(8000);
    QVERIFY(!table().isRunning());
}

void TestPlayer::repeatCountIsReadWhenTheBlockIsEntered()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("2"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("B"), QStringLiteral("1"));
    run();
    table().tick();
    table().times(0)->setText(QStringLiteral("50"));
    table().times(1)->setText(QStringLiteral("3"));
    QCOMPARE(table().play(), QVector<int>({1, 2, 2, 2}));
}

NELVO_TEST_MAIN(TestPlayer)
#include "tst_player.moc"
