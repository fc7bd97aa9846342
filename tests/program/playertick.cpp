// The player as a value: what a tick does with a table of steps.

#include "program/player.h"
#include "program/steprows.h"

#include "support/testmain.h"

using namespace TestText;

namespace {

constexpr qint64 start = 1000000;

ProgramStep lasting(double timeSec, const QString& group = QString(), int times = 1)
{
    ProgramStep step;
    step.timeSec = timeSec;
    step.group = group;
    step.times = times;
    return step;
}

} // namespace

class PlayerTickTest : public QObject
{
    Q_OBJECT

    Player player;

private slots:
    void init() { player = Player(); }

    void theFirstTickBeginsTheFirstStep()
    {
        ProgramStep step = lasting(2.0);
        step.setPoints[1] = "850"_s;
        step.shutters[3] = true;
        const StepRows rows({step});
        player.start(rows, start);
        const PlayerTick tick = player.tick(rows, start + 10);
        QVERIFY(!tick.ended);
        QVERIFY(!tick.isOver);
        QVERIFY(tick.begun);
        QCOMPARE(tick.begun->kind, StepPlan::Kind::Step);
        QCOMPARE(tick.begun->timeSec, 2.0);
        QCOMPARE(tick.begun->ramps.size(), 1);
        QCOMPARE(tick.begun->ramps[0].channel, 1);
        QCOMPARE(tick.begun->ramps[0].minutes, "0.0333333"_s);
        QCOMPARE(tick.begun->shutters, QVector<bool>({false, false, false, true, false, false, false}));
        QCOMPARE(player.stepStartMs, start + 10);
    }

    void nothingHappensUntilItsTimeHasPassed()
    {
        const StepRows rows({lasting(2.0), lasting(1.0)});
        player.start(rows, start);
        player.tick(rows, start);
        const PlayerTick tick = player.tick(rows, start + 2000);
        QVERIFY(!tick.ended && !tick.begun && !tick.isOver);
    }

    void oneTickEndsAStepAndBeginsTheNext()
    {
        const StepRows rows({lasting(2.0, "A"_s), lasting(1.0, "A"_s)});
        player.start(rows, start);
        player.tick(rows, start);
        const PlayerTick tick = player.tick(rows, start + 2001);
        QVERIFY(tick.ended == BlockCursor::Move::SameBlock);
        QCOMPARE(tick.begun->timeSec, 1.0);
        QCOMPARE(player.stepDueMs, start + 2000);
    }

    void aHoldPausesAndIsOverAtOnce()
    {
        const StepRows rows({lasting(-1.0), lasting(1.0)});
        player.start(rows, start);
        QCOMPARE(player.tick(rows, start).begun->kind, StepPlan::Kind::Hold);
        QVERIFY(player.progPaused);
        player.progPaused = false;
        QVERIFY(player.tick(rows, start).ended == BlockCursor::Move::SameBlock);
    }

    void aTimeOfZeroIsTheEnd()
    {
        const StepRows rows({lasting(1.0, "A"_s, 2)});
        player.start(rows, start);
        player.tick(rows, start);
        QVERIFY(player.tick(rows, start + 1001).ended == BlockCursor::Move::Repeat);
        const PlayerTick tick = player.tick(rows, start + 2003);
        QVERIFY(tick.ended == BlockCursor::Move::NextBlock);
        QVERIFY(!tick.begun);
        QVERIFY(tick.isOver);
    }

    void behindTheLastRowIsTheEnd()
    {
        const StepRows rows(QVector<ProgramStep>(programRows, lasting(0.001)));
        player.start(rows, start);
        PlayerTick tick = player.tick(rows, start);
        int begun = 1;
        for (; !tick.isOver && begun <= programRows; ++begun) {
            tick = player.tick(rows, start + 2 * begun);
        }
        QCOMPARE(begun - 1, programRows);
        QVERIFY(tick.ended == BlockCursor::Move::TableEnd);
    }

    void aProgramFillsTheTable()
    {
        const StepRows rows({lasting(2.0, "A"_s, 3)});
        QCOMPARE(rows.count(), 200);
        QCOMPARE(rows.step(0), lasting(2.0, "A"_s, 3));
        QCOMPARE(rows.timeSec(0), 2.0);
        QCOMPARE(rows.group(0), "A"_s);
        QCOMPARE(rows.times(0), 3);
        QCOMPARE(rows.step(199), ProgramStep());
        QCOMPARE(StepRows(QVector<ProgramStep>(300)).count(), 200);
    }
};

NELVO_TEST_MAIN(PlayerTickTest)
#include "playertick.moc"
