// The polling as a value: every transition of its state machine, by table.

#include "temperature/polling.h"

#include "base/channels.h"
#include "support/testmain.h"

#include <functional>

using State = Polling::State;
using Change = std::function<void(Polling&)>;
Q_DECLARE_METATYPE(Polling)
Q_DECLARE_METATYPE(Change)

namespace {

const QByteArray line = QByteArrayLiteral("01M0025.0CE");

Polling at(State state)
{
    Polling polling;
    polling.watchState = state;
    polling.tickCount = 40;
    polling.sentTick = 30;
    polling.lastRampTick = 20;
    polling.pollCh = 4;
    polling.rampCh = 6;
    return polling;
}

} // namespace

class PollingTest : public QObject
{
    Q_OBJECT

private slots:
    void startsWithTheFirstChannel()
    {
        const Polling fresh;
        QVERIFY(fresh.watchState == State::Read);
        QCOMPARE(fresh.pollCh, 0);
        QCOMPARE(fresh.rampCh, 0);
        QCOMPARE(fresh.tickCount, 99);
        QCOMPARE(fresh.sentTick, -1);
        QCOMPARE(fresh.lastRampTick, -1);
        QVERIFY(fresh.tmpReply.isEmpty());
    }

    void transitions_data()
    {
        QTest::addColumn<Polling>("before");
        QTest::addColumn<Change>("event");
        QTest::addColumn<Polling>("after");
        const auto row
            = [](const char* name, const Polling& before, const Change& event, const Change& effect) {
                  Polling after = before;
                  effect(after);
                  QTest::newRow(name) << before << event << after;
              };
        const auto becomes = [](State state) { return [state](Polling& p) { p.watchState = state; }; };
        const Change nothing = [](Polling&) {};
        const Change awaitReply = [](Polling& p) { p.awaitReply(); };
        const Change rampBusy = [](Polling& p) { p.rampStepped(true); };
        const Change rampDone = [](Polling& p) { p.rampStepped(false); };
        const auto turnPasses = [](int rampCh) {
            return [rampCh](Polling& p) {
                p.watchState = State::NextChannel;
                p.rampCh = rampCh;
                p.lastRampTick = p.tickCount;
            };
        };

        row(
            "read: not in use", at(State::Read), [](Polling& p) { p.skipChannel(); },
            becomes(State::RampStep));
        row(
            "read: sent", at(State::Read), [](Polling& p) { p.requestSent(); },
            [](Polling& p) {
                p.watchState = State::AwaitReply;
                p.sentTick = 40;
            });

        row("await: nothing yet", at(State::AwaitReply), awaitReply, nothing);
        Polling circled = at(State::AwaitReply);
        circled.sentTick = 40;
        row("await: full circle", circled, awaitReply, [](Polling& p) {
            p.watchState = State::ReplyReady;
            p.tmpReply = "ER";
        });
        row(
            "await: a reply", at(State::AwaitReply), [](Polling& p) { p.takeReply(line); },
            [](Polling& p) {
                p.watchState = State::ReplyReady;
                p.tmpReply = line;
            });

        row(
            "ready: shown", at(State::ReplyReady), [](Polling& p) { p.replyShown(); },
            becomes(State::RampStep));

        row("ramp: done", at(State::RampStep), rampDone, turnPasses(7));
        row("ramp: busy", at(State::RampStep), rampBusy, nothing);
        Polling busyCircle = at(State::RampStep);
        busyCircle.lastRampTick = 40;
        row("ramp: busy for a full circle", busyCircle, rampBusy, turnPasses(7));
        Polling last = at(State::RampStep);
        last.rampCh = Channels::count - 1;
        row("ramp: the last channel's turn", last, rampDone, turnPasses(0));

        row(
            "next: the channel after", at(State::NextChannel), [](Polling& p) { QVERIFY(!p.nextChannel()); },
            [](Polling& p) {
                p.watchState = State::Read;
                p.pollCh = 5;
            });
        Polling lastRead = at(State::NextChannel);
        lastRead.pollCh = Channels::count - 1;
        row(
            "next: the round is over", lastRead, [](Polling& p) { QVERIFY(p.nextChannel()); },
            [](Polling& p) {
                p.watchState = State::Read;
                p.pollCh = 0;
            });
    }

    void transitions()
    {
        QFETCH(Polling, before);
        QFETCH(Change, event);
        QFETCH(Polling, after);
        event(before);
        QVERIFY(before.watchState == after.watchState);
        QCOMPARE(before.tickCount, after.tickCount);
        QCOMPARE(before.sentTick, after.sentTick);
        QCOMPARE(before.lastRampTick, after.lastRampTick);
        QCOMPARE(before.pollCh, after.pollCh);
        QCOMPARE(before.rampCh, after.rampCh);
        QCOMPARE(before.tmpReply, after.tmpReply);
    }

    // A late reply is nobody's: it is kept, and nothing moves.
    void aReplyIsKeptInEveryState()
    {
        for (const State state : {State::Read, State::ReplyReady, State::RampStep, State::NextChannel}) {
            Polling polling = at(state);
            polling.takeReply(line);
            QVERIFY(polling.watchState == state);
            QCOMPARE(polling.tmpReply, line);
        }
    }

    void aRoundReadsEveryChannelOnce()
    {
        Polling polling;
        for (int channel = 0; channel < Channels::count; ++channel) {
            QCOMPARE(polling.pollCh, channel);
            QCOMPARE(polling.nextChannel(), channel == Channels::count - 1);
        }
        QCOMPARE(polling.pollCh, 0);
    }

    void everyTenthTickIsTold()
    {
        Polling polling;
        int ticks = 0;
        int told = 0;
        do {
            ++ticks;
            const bool tells = polling.countTick();
            QCOMPARE(tells, polling.tickCount % 10 == 0);
            told += tells ? 1 : 0;
            QVERIFY(polling.tickCount >= 0 && polling.tickCount < 300);
        } while (polling.tickCount != 99 && ticks < 1000);
        QCOMPARE(ticks, 300);
        QCOMPARE(told, 30);
    }
};

NELVO_TEST_MAIN(PollingTest)
#include "polling.moc"
