#include "program/programwindow.h"

#include "support/paintcount.h"
#include "support/testmain.h"

namespace {

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");

} // namespace

/// Starting, pausing, holding and stopping a program, as its labels and buttons show it.
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
    void runningTimesDoNotRepaintTheTable();
    void holdPointWaitsForTheOperator();
    void pauseCountsTowardsTheStep();
    void pauseShowsAndDoesNothingWhenIdle();
    void stopKeepsTheMarkAndRestartBeginsAnew();
    void stopWhilePausedThenStartRunsUnpaused();
    void oneTickStartsOneStepHoweverLate();
    void rowsAreReadWhenTheyAreReached();

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

void TestPlayer::runningTimesDoNotRepaintTheTable()
{
    table().show();
    table().enter(0, QStringLiteral("60"));
    run();
    table().tick(10);
    const auto tickAndPaint = [this](int times) {
        for (int i = 0; i < times; ++i) {
            table().tick(100);
            QCoreApplication::processEvents();
        }
    };
    table().tick(10000);
    tickAndPaint(10); // the labels have taken their room, and that is painted
    PaintCount tablePaints(*table().time(0));
    PaintCount labelPaints(*table().window().findChild<QLabel*>(QStringLiteral("DispTime01")));
    tablePaints.take();
    labelPaints.take();
    tickAndPaint(10);
    QVERIFY(labelPaints.take() >= 10);
    QCOMPARE(tablePaints.take(), 0);
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

NELVO_TEST_MAIN(TestPlayer)
#include "player.moc"
