// A program as it is rehearsed: when its steps start, what its ramps send, and that folded passes are the
// passes that they stand for.

#include "growthcheck/check/loadedprogram.h"
#include "growthcheck/rehearsal/playedsteps.h"
#include "growthcheck/rehearsal/rehearsal.h"
#include "growthcheck/rehearsal/wire.h"
#include "growthcheck/support/programtext.h"
#include "growthcheck/support/randomprogram.h"
#include "program/steprows.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

using namespace TestText;
using GrowthCheck::Assumptions;
using GrowthCheck::Timeline;

namespace {

Assumptions allAt(double degC)
{
    Assumptions assumptions;
    assumptions.starts.fill({Assumptions::Start::Kind::Known, degC});
    return assumptions;
}

Timeline timelineOf(const QStringList& program, const Assumptions& assumptions = allAt(20.0))
{
    putFile("program.dat"_s, programText(program));
    return GrowthCheck::rehearse(GrowthCheck::loadProgram("program.dat"_s)->steps, assumptions);
}

// "10 ms Ga 70.0".
QStringList setPointsOf(const Timeline& timeline)
{
    QStringList texts;
    const auto add = [&texts](const GrowthCheck::PlannedSetPoint& setPoint) {
        texts.append("%1 ms %2 %3"_s.arg(QString::number(setPoint.dueMs),
            QLatin1String(Channels::list[setPoint.channel].name), QString::number(setPoint.degC, 'f', 1)));
    };
    GrowthCheck::playSteps(timeline, [&add](const GrowthCheck::PlayedStep& step) {
        std::for_each(step.setPoints.begin(), step.setPoints.end(), add);
        return true;
    });
    std::for_each(timeline.tail.begin(), timeline.tail.end(), add);
    return texts;
}

QByteArray messagesOf(const Timeline& timeline)
{
    QByteArray text;
    GrowthCheck::playMessages(timeline, [&text](const GrowthCheck::WireMessage& message) {
        text += QByteArray::number(message.timeMs) + ' ' + QByteArray::number(message.address) + ' '
            + QByteArray::number(message.channel) + (message.isSure ? " " : "? ") + message.bytes.toHex()
            + '\n';
        return true;
    });
    return text;
}

// The same program without repeats: every pass has rows of its own. Nothing when the table has too few.
std::optional<QVector<ProgramStep>> unrolled(const QVector<ProgramStep>& steps)
{
    const StepRows rows(steps);
    BlockCursor at = BlockCursor::atStart(rows);
    QVector<ProgramStep> all;
    for (auto move = BlockCursor::Move::SameBlock;
         move != BlockCursor::Move::TableEnd && rows.timeSec(at.curStep) != 0.0; move = at.advance(rows)) {
        ProgramStep step = rows.step(at.curStep);
        step.group.clear();
        step.times = 1;
        all.append(step);
        if (all.size() == programRows) {
            return std::nullopt;
        }
    }
    return all;
}

} // namespace

class TimelineTest : public QObject
{
    Q_OBJECT

private slots:
    void aStepBeginsATickAfterTheOneBefore()
    {
        const Timeline timeline = timelineOf({"t=2 open=Ga"_s, "t=0.014"_s, "t=1"_s});
        QCOMPARE(timeline.steps.size(), 3);
        QCOMPARE(timeline.steps[0].startMs, 10);
        QCOMPARE(timeline.steps[1].startMs, 2020);
        QCOMPARE(timeline.steps[2].startMs, 2040);
        QCOMPARE(timeline.endMs, 3050);
        QCOMPARE(timeline.stop, Timeline::Stop::AtEnd);
        QCOMPARE(timeline.shownTotalSec, 3.014);
    }

    void groupsThatLookAlikeAreTwo()
    {
        const Timeline timeline = timelineOf({"t=1 g=A x=2"_s, "t=1 g=a x=2"_s});
        QVector<int> rows;
        GrowthCheck::playSteps(timeline, [&rows](const GrowthCheck::PlayedStep& step) {
            rows.append(step.planned.row);
            return true;
        });
        QCOMPARE(rows, (QVector<int>{0, 0, 1, 1}));
    }

    void aHoldWaitsForTheOperator()
    {
        Assumptions assumptions = allAt(20.0);
        assumptions.holdMs = 5000;
        const Timeline timeline = timelineOf({"t=1"_s, "t=-1"_s, "t=1"_s}, assumptions);
        QCOMPARE(timeline.steps[1].startMs, 1020);
        QCOMPARE(timeline.steps[1].holdsBefore, 0);
        QCOMPARE(timeline.steps[2].startMs, 6030);
        QCOMPARE(timeline.steps[2].holdsBefore, 1);
        QCOMPARE(timeline.holds, 1);
    }

    void aRampSendsASetPointAMinute()
    {
        QCOMPARE(setPointsOf(timelineOf({"t=150 Ga=95 MainCh=10"_s, "t=10 Ga=90"_s})),
            QStringList(
                {"10 ms Ga 50.0"_s, "10 ms Main Ch 16.0"_s, "60010 ms Ga 80.0"_s, "60010 ms Main Ch 12.0"_s,
                    "120010 ms Ga 95.0"_s, "120010 ms Main Ch 10.0"_s, "150020 ms Ga 90.0"_s}));
    }

    void onlySetPointsAboveZeroAreSent()
    {
        QCOMPARE(setPointsOf(timelineOf({"t=60 Ga=-5 Si=0 Al=12,5 In=30"_s, "t=10"_s})),
            QStringList({"10 ms In 30.0"_s}));
    }

    void groupsThatDifferInCaseAreTwo()
    {
        const Timeline timeline = timelineOf({"t=1 g=A x=2"_s, "t=1 g=a x=3"_s, "t=1 g=A"_s});
        QCOMPARE(timeline.starts, 6);
    }

    void aLevelRampGoesOnWhileTheProgramPlays()
    {
        const Timeline timeline = timelineOf({"t=10 Ga=20"_s, "t=130"_s});
        QCOMPARE(setPointsOf(timeline),
            QStringList({"10 ms Ga 20.0"_s, "60010 ms Ga 20.0"_s, "120010 ms Ga 20.0"_s}));
        QVERIFY(timeline.endlessAtEnd[1]);
    }

    void aProgramThatIsCutHasNoEnd()
    {
        for (const char* step : {"t=1e9 Ga=20 Si=900", "t=1e300 Ga=20"}) {
            const Timeline timeline = timelineOf({QLatin1String(step)});
            QVERIFY(timeline.stop != Timeline::Stop::AtEnd);
            QVERIFY(timeline.isCut());
            QVERIFY(timeline.tail.isEmpty());
            QVERIFY(!timeline.endlessAtEnd.contains(true));
        }
    }

    // The steps of these ramps are near the least that changes a number at all: one is rounded down to five
    // sevenths, so that its ramp takes longer by two fifths, the other one to nothing.
    void onlyARampThatStandsStillIsEndless()
    {
        const Timeline slow = timelineOf({"t=2400000 Ga=850.00000000637"_s}, allAt(850.0));
        QCOMPARE(slow.stop, Timeline::Stop::AtEnd);
        QVERIFY(slow.isTailCut);
        QVERIFY(!slow.endlessAtEnd[1]);
        const Timeline still = timelineOf({"t=2400000 Ga=850.000000001"_s}, allAt(850.0));
        QVERIFY(!still.isTailCut);
        QVERIFY(still.endlessAtEnd[1]);
        QVERIFY(!timelineOf({"t=60 Ga=30"_s, "t=1"_s}).isCut());
    }

    void twoThousandMillionPassesAreOne()
    {
        const Timeline few = timelineOf({"t=0.5 g=A x=4"_s, "t=0.1"_s});
        const Timeline many = timelineOf({"t=0.5 g=A x=2147483647"_s, "t=0.1"_s});
        QCOMPARE(many.steps.size(), few.steps.size());
        QCOMPARE(many.folds.size(), 1);
        QCOMPARE(many.folds[0].firstPass, 2);
        QCOMPARE(many.folds[0].passes, 2147483645);
        QCOMPARE(many.steps.constLast().startMs, 10 + 2147483647LL * 510);
        QCOMPARE(many.starts, 2147483648LL);
    }

    void thousandMillionHoldsAreCounted()
    {
        const Timeline timeline
            = timelineOf({"t=-1 g=A x=2147483647"_s, "t=-1 g=A"_s, "t=-1 g=A"_s, "t=1"_s});
        QCOMPARE(timeline.holds, 3 * 2147483647LL);
        QCOMPARE(timeline.starts, 3 * 2147483647LL + 1);
        QCOMPARE(timeline.timesAlike(0), 2147483646LL);
    }

    void foldedPassesHoldWhatTheyStandFor_data()
    {
        QTest::addColumn<QStringList>("program");
        QTest::newRow("shutters") << QStringList{"t=1 open=Ga g=A x=12"_s, "t=2 open=Al g=A"_s, "t=3"_s};
        QTest::newRow("ramps up and down")
            << QStringList{"t=60 Ga=50 g=A x=9"_s, "t=61 Ga=21 g=A"_s, "t=30 Ga=25"_s};
        QTest::newRow("a level ramp before")
            << QStringList{"t=7 Ga=20"_s, "t=11 open=Ga g=A x=40"_s, "t=100 Ga=30"_s};
        QTest::newRow("a level ramp within") << QStringList{"t=70 Ga=30 g=A x=10"_s, "t=90 g=A"_s, "t=3"_s};
        QTest::newRow("a ramp from before")
            << QStringList{"t=60.1 Ga=60"_s, "t=13 Si=30 g=A x=20"_s, "t=5 g=A"_s, "t=3"_s};
        QTest::newRow("holds") << QStringList{"t=1 g=A x=8"_s, "t=-1 g=A"_s, "t=2 Ga=20.5"_s};
    }

    void foldedPassesHoldWhatTheyStandFor()
    {
        QFETCH(QStringList, program);
        const Timeline folded = timelineOf(program);
        QVERIFY(!folded.folds.isEmpty());
        const auto flat = unrolled(GrowthCheck::loadProgram("program.dat"_s)->steps);
        const Timeline plain = GrowthCheck::rehearse(*flat, allAt(20.0));
        QVERIFY(plain.folds.isEmpty());
        QCOMPARE(messagesOf(folded), messagesOf(plain));
        QCOMPARE(folded.endMs, plain.endMs);
        QCOMPARE(folded.holds, plain.holds);
        QCOMPARE(folded.starts, plain.starts);
    }

    void programsByChanceAreTheSameUnrolled()
    {
        int compared = 0;
        for (quint32 seed = 0; compared < 300; ++seed) {
            const RandomProgram random(seed);
            const auto flat = unrolled(random.loaded);
            if (!flat) {
                continue;
            }
            ++compared;
            const Timeline folded = GrowthCheck::rehearse(random.loaded, random.assumptions);
            const Timeline plain = GrowthCheck::rehearse(*flat, random.assumptions);
            QVERIFY2(messagesOf(folded) == messagesOf(plain), qPrintable("seed %1"_s.arg(seed)));
            QCOMPARE(folded.endMs, plain.endMs);
        }
    }
};

NELVO_TEST_MAIN(TimelineTest)
#include "timeline.moc"
