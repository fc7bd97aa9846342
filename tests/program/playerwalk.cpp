#include "program/programwindow.h"

#include "support/testmain.h"

/// The player's way through groups and repeats, and the total time, as the labels show them.
class TestPlayerWalk : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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
    void repeatCountIsReadWhenTheBlockIsEntered();

private:
    ProgramWindow& table() { return *fresh; }
    void run() { table().button("ProgRun")->click(); }
    QString label(const char* name) { return table().label(name); }

    std::unique_ptr<ProgramWindow> fresh;
};

void TestPlayerWalk::init()
{
    fresh = std::make_unique<ProgramWindow>();
}

void TestPlayerWalk::cleanup()
{
    fresh.reset();
}

void TestPlayerWalk::groupIsPlayedThreeTimes()
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

void TestPlayerWalk::timesOfALaterRowHasNoEffect()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("1"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("9"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.2"));
    QCOMPARE(table().play(), QVector<int>({1, 2}));
}

void TestPlayerWalk::neighboursWithTheSameGroupAreOneBlock()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("2"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("3"));
    table().enter(2, QStringLiteral("0.1"), QStringLiteral("a"), QStringLiteral("2"));
    run();
    QCOMPARE(table().play(), QVector<int>({1, 2, 1, 2, 3, 3}));
}

void TestPlayerWalk::repeatCountBelowOneRunsOnce_data()
{
    QTest::addColumn<QString>("times");
    for (const char* times : {"0", "-5", "many", ""}) {
        QTest::newRow(times) << QString::fromLatin1(times);
    }
}

void TestPlayerWalk::repeatCountBelowOneRunsOnce()
{
    QFETCH(QString, times);
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), times);
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("B"), QStringLiteral("2"));
    run();
    QCOMPARE(label("DispCount01"), QStringLiteral("----"));
    QCOMPARE(label("DispCount02"), QStringLiteral("----"));
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.3"));
    QCOMPARE(table().play(), QVector<int>({1, 2, 2}));
}

void TestPlayerWalk::lastRowIsPlayedButNotCounted()
{
    for (int k = 0; k < 199; ++k) {
        table().enter(k, QStringLiteral("0.01"));
    }
    table().enter(199, QStringLiteral("5"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   2.0")); // 1.99, and not the 5 of the last row
    const QVector<int> steps = table().play();
    QCOMPARE(steps.size(), 200);
    QCOMPARE(steps.last(), 200);
    QVERIFY(!table().isRunning());
    QCOMPARE(table().marked(), QVector<int>());
}

void TestPlayerWalk::groupAtTheEndOfTheTableIsNotRepeated()
{
    for (int k = 0; k < 200; ++k) {
        table().enter(k, QStringLiteral("0.01"), QStringLiteral("A"), QStringLiteral("5"));
    }
    run();
    QCOMPARE(table().play().size(), 200);
}

void TestPlayerWalk::textThatIsNoNumberEndsTheProgram()
{
    table().enter(0, QStringLiteral("0.1"));
    table().enter(1, QStringLiteral("a while"));
    table().enter(2, QStringLiteral("0.1"));
    run();
    QCOMPARE(label("DispTTime02"), QStringLiteral("   0.1"));
    QCOMPARE(table().play(), QVector<int>({1}));
}

void TestPlayerWalk::checkButtonShowsTheTotal()
{
    table().enter(0, QStringLiteral("10"), QStringLiteral("A"), QStringLiteral("4"));
    table().enter(1, QStringLiteral("-1"), QStringLiteral("A"));
    table().enter(2, QStringLiteral("2.5"));
    QTest::mouseClick(table().button("ProgCheck"), Qt::LeftButton);
    QCOMPARE(label("DispTTime02"), QStringLiteral("  42.5"));
    QVERIFY(!table().isRunning());
}

void TestPlayerWalk::checkWhileRunningLeavesTheRunAlone()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("3"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("B"));
    run();
    QCOMPARE(table().play(15), QVector<int>({1, 1}));
    QTest::mouseClick(table().button("ProgCheck"), Qt::LeftButton);
    QCOMPARE(label("DispCount01"), QStringLiteral("   2"));
    QCOMPARE(table().play(), QVector<int>({1, 2}));
}

void TestPlayerWalk::checkOfHugeRepeatsAnswersAtOnce()
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

void TestPlayerWalk::repeatCountIsReadWhenTheBlockIsEntered()
{
    table().enter(0, QStringLiteral("0.1"), QStringLiteral("A"), QStringLiteral("2"));
    table().enter(1, QStringLiteral("0.1"), QStringLiteral("B"), QStringLiteral("1"));
    run();
    table().tick();
    table().times(0)->setText(QStringLiteral("50"));
    table().times(1)->setText(QStringLiteral("3"));
    QCOMPARE(table().play(), QVector<int>({1, 2, 2, 2}));
}

NELVO_TEST_MAIN(TestPlayerWalk)
#include "playerwalk.moc"
