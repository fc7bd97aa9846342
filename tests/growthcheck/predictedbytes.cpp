// The bytes that growthcheck predicts are the bytes that a real station sends, for programs as nobody would
// write them. NELVO_PREDICTED_PROGRAMS says how many are played.

#include "growthcheck/check/loadedprogram.h"
#include "growthcheck/rehearsal/rehearsal.h"
#include "growthcheck/rehearsal/wire.h"
#include "growthcheck/support/playedchamber.h"
#include "growthcheck/support/randomprogram.h"
#include "program/programfile.h"
#include "support/files.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QFile>
#include <QTextStream>

using namespace TestText;
using GrowthCheck::WireMessage;

namespace {

constexpr int programs = 50;
constexpr int batchSize = 10;
constexpr qint64 longestMs = 240000;
constexpr qint64 tailMs = 70000;

// What the prediction says of one controller, or of the shutters.
struct Sequence
{
    QList<WireMessage> predicted;
    QList<PlayedChamber::Arrival> came;
};

int channelOf(const Wire::Message& message)
{
    return message.kind == Wire::Message::SetPoint ? message.value : -1;
}

} // namespace

class PredictedBytesTest : public OpenStationTest
{
    Q_OBJECT

    std::unique_ptr<PlayedChamber> chamber;

    void enter(int row, const RowTexts& texts)
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            program().setPoint(row, channel)->setText(texts.setPoints.at(static_cast<size_t>(channel)));
        }
        for (int number = 0; number < Channels::shutterCount; ++number) {
            const bool isOpen = program().step(row).shutters.at(static_cast<size_t>(number));
            if (isOpen != texts.shutters.at(static_cast<size_t>(number))) {
                QTest::mouseClick(program().shutter(row, number), Qt::LeftButton);
            }
        }
        program().enter(row, texts.time, texts.group, texts.times);
    }

    void makeInUse(int channel, bool inUse)
    {
        if ((station->text(cell("TCActive", channel)) == "Active"_s) != inUse) {
            station->click(cell("TCActive", channel));
        }
    }

    void prepare(const RandomProgram& random)
    {
        chamber->setReplyTicks(random.replyTicks);
        chamber->setPollingFirst(random.isPollingFirst);
        for (int channel = 0; channel < Channels::count; ++channel) {
            const GrowthCheck::Assumptions::Start& start
                = random.assumptions.starts.at(static_cast<size_t>(channel));
            makeInUse(channel, true);
            if (station->isRamping(channel)) {
                station->click(cell("RunT", channel));
            }
            chamber->setTemperature(channel, start.degC);
            makeInUse(channel, start.kind == GrowthCheck::Assumptions::Start::Kind::Known);
        }
        program().load(random.loaded);
        chamber->settle();
        chamber->ticks(random.phaseTicks);
        chamber->takeArrivals();
    }

    // Plays the program; when Run was pressed.
    qint64 play(const RandomProgram& random)
    {
        program().click("Run");
        const qint64 runMs = DrivenClock::nowMs();
        bool isEdited = random.edits.isEmpty();
        qint64 heldSinceMs = 0;
        while (program().isRunning() && DrivenClock::nowMs() - runMs < 2 * longestMs) {
            chamber->tick();
            if (!isEdited) {
                isEdited = true;
                for (const auto& edit : random.edits) {
                    enter(edit.first, edit.second);
                }
            }
            if (!program().isWaiting()) {
                heldSinceMs = 0;
                continue;
            }
            heldSinceMs = heldSinceMs == 0 ? DrivenClock::nowMs() : heldSinceMs;
            if (DrivenClock::nowMs() - heldSinceMs >= random.assumptions.holdMs) {
                program().click("Pause");
                heldSinceMs = 0;
            }
        }
        chamber->ticks(static_cast<int>(tailMs / 10));
        return runMs;
    }

    // What growthcheck says of the table as it ended up.
    GrowthCheck::Timeline predict(const RandomProgram& random) const
    {
        QByteArray text;
        QTextStream stream(&text);
        ProgramFile::write(stream, random.edited());
        stream.flush();
        putFile("predicted.dat"_s, text);
        return GrowthCheck::rehearse(GrowthCheck::loadProgram("predicted.dat"_s)->steps, random.assumptions);
    }

    // Programs that say nothing: too long to play, or with ramps whose start the polling's phase decides.
    static bool isWorthPlaying(const GrowthCheck::Timeline& timeline)
    {
        for (const GrowthCheck::PlannedStep& step : timeline.steps) {
            for (const GrowthCheck::PlannedRamp& ramp : step.ramps) {
                if (ramp.from == GrowthCheck::PlannedRamp::From::Lagging) {
                    return false;
                }
            }
        }
        return timeline.stop == GrowthCheck::Timeline::Stop::AtEnd && timeline.endMs < longestMs;
    }

    // Empty when what came of a channel (-1 for the shutters) is what was predicted. What need not come may
    // be taken for the next one, which can be the same bytes: then it is tried without it.
    QString difference(
        const Sequence& sequence, qint64 allowedMs, qint64 untilMs, int next = 0, int place = 0) const
    {
        const bool hasCome = place < sequence.came.size();
        const QByteArray came
            = hasCome ? readable(sequence.came[place].message.bytes) : QByteArray("nothing");
        const qint64 cameMs = hasCome ? sequence.came[place].ms : -1;
        if (next == sequence.predicted.size()) {
            return hasCome ? "%1 came at %2 ms, and nothing was predicted"_s.arg(
                       QString::fromLatin1(came), QString::number(cameMs))
                           : QString();
        }
        const WireMessage& predicted = sequence.predicted[next];
        const bool fits = hasCome && sequence.came[place].message.bytes == predicted.bytes
            && cameMs >= predicted.timeMs && cameMs <= predicted.timeMs + allowedMs;
        QString found = "at %1 ms %2, and %3 came at %4 ms"_s.arg(QString::number(predicted.timeMs),
            QString::fromLatin1(readable(predicted.bytes)), QString::fromLatin1(came),
            QString::number(cameMs));
        if (fits) {
            found = difference(sequence, allowedMs, untilMs, next + 1, place + 1);
        }
        const bool mayLack = !predicted.isSure || predicted.timeMs + allowedMs >= untilMs;
        return found.isEmpty() || !mayLack ? found
                                           : difference(sequence, allowedMs, untilMs, next + 1, place);
    }

    // Everything that came, less the set points of ramps without a rate that outlive the program.
    QString compare(const GrowthCheck::Timeline& timeline, const RandomProgram& random, qint64 runMs)
    {
        const qint64 untilMs = DrivenClock::nowMs() - runMs;
        QMap<int, Sequence> sequences;
        GrowthCheck::playMessages(timeline, [&sequences](const WireMessage& message) {
            sequences[message.channel].predicted.append(message);
            return true;
        });
        for (PlayedChamber::Arrival arrival : chamber->takeArrivals()) {
            arrival.ms -= runMs;
            const int channel = channelOf(arrival.message);
            const bool isEndless = channel >= 0 && timeline.endlessAtEnd[channel];
            if (!isEndless || arrival.ms <= timeline.endMs + random.assumptions.roundMs()) {
                sequences[channel].came.append(arrival);
            }
        }
        for (auto sequence = sequences.begin(); sequence != sequences.end(); ++sequence) {
            const bool isShutters = sequence.key() < 0;
            const qint64 allowedMs
                = isShutters ? 10 * (random.replyTicks + 1) : random.assumptions.roundMs() + 20;
            const QString found = difference(*sequence, allowedMs, untilMs);
            if (!found.isEmpty()) {
                return (isShutters ? "shutters: "_s : "channel %1: "_s.arg(sequence.key())) + found;
            }
        }
        return {};
    }

private slots:
    void init()
    {
        OpenStationTest::init();
        chamber = std::make_unique<PlayedChamber>(*station);
    }

    void cleanup()
    {
        chamber.reset();
        OpenStationTest::cleanup();
    }

    void whatIsPredictedComes_data()
    {
        QTest::addColumn<quint32>("firstSeed");
        bool isGiven = false;
        const int wanted = qEnvironmentVariableIntValue("NELVO_PREDICTED_PROGRAMS", &isGiven);
        for (int batch = 0; batch * batchSize < (isGiven ? wanted : programs); ++batch) {
            QTest::addRow("batch %d", batch) << quint32(1000 * batch);
        }
    }

    void whatIsPredictedComes()
    {
        QFETCH(quint32, firstSeed);
        int played = 0;
        for (quint32 seed = firstSeed; played < batchSize; ++seed) {
            const RandomProgram random(seed);
            const GrowthCheck::Timeline timeline = predict(random);
            if (!isWorthPlaying(timeline)) {
                continue;
            }
            ++played;
            prepare(random);
            const qint64 runMs = play(random);
            QVERIFY2(!program().isRunning(), qPrintable("seed %1 does not end"_s.arg(seed)));
            const QString found = compare(timeline, random, runMs);
            QVERIFY2(found.isEmpty(),
                qPrintable("seed %1: %2\n%3"_s.arg(seed).arg(
                    found, QString::fromUtf8(fileText("predicted.dat"_s)))));
        }
    }
};

NELVO_TEST_MAIN(PredictedBytesTest)
#include "predictedbytes.moc"
