#include "support/station.h"

#include "support/files.h"

#include <QFile>
#include <QtTest>

using namespace TestText;

namespace {

// So many ticks in a row without traffic, and the next ones wait for events: a machine under load must not
// let a test tick its way into the station's 300-tick time-out.
constexpr int patientTicks = 50;

QByteArray masksAmong(const QList<Wire::Message>& messages)
{
    QByteArray masks;
    for (const Wire::Message& message : messages) {
        if (message.kind == Wire::Message::Shutters) {
            masks.append(static_cast<char>(message.value));
        }
    }
    return masks;
}

} // namespace

Station::Station(Time time)
    : addressBefore(qgetenv("NELVO_ADAPTER"))
{
    qputenv("NELVO_ADAPTER", adapter.address().toLatin1());
    if (time == Time::Held) {
        held = std::make_unique<HeldTicks>();
        clock = std::make_unique<DrivenClock>();
    }
}

Station::~Station()
{
    close();
    qputenv("NELVO_ADAPTER", addressBefore);
    QFile::remove(stateFile);
    QFile::remove(recordFile);
}

void Station::storeInUse(const QList<int>& channels)
{
    QByteArray lines;
    for (int channel = 0; channel < Channels::count; ++channel) {
        lines += "ActiveF" + QByteArray::number(channel)
            + (channels.contains(channel) ? "\tActive\n" : "\tInActive\n");
    }
    putFile(stateFile, lines);
}

bool Station::open()
{
    build();
    return adapter.expect(Wire::opening);
}

bool Station::tickUntil(const std::function<bool()>& condition, int maximumTicks)
{
    int quietTicks = 0;
    for (int i = 0; i < maximumTicks; ++i) {
        if (condition()) {
            return true;
        }
        tick();
        // A tick's bytes leave in one turn of the event loop and arrive in another; so does the answer.
        for (int turn = 0; turn < 3; ++turn) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        }
        quietTicks = answer() ? 0 : quietTicks + 1;
        if (quietTicks > patientTicks) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    return condition();
}

bool Station::round()
{
    const int recordsBefore = records();
    return tickUntil([recordsBefore] { return records() > recordsBefore; });
}

void Station::answerOwnReadings()
{
    for (int channel = 0; channel < Channels::count; ++channel) {
        answers[channel] = Wire::ownReading(channel);
    }
}

QByteArray Station::masks() const
{
    QByteArray bytes = adapter.received();
    return takenMasks + masksAmong(Wire::takeMessages(bytes));
}

void Station::forget()
{
    adapter.forget();
    takenMasks.clear();
    setPoints.clear();
    reads.clear();
}

int Station::records()
{
    return fileText(recordFile).count('\n');
}

// Answers what has come. False when nothing had.
bool Station::answer()
{
    const QList<Wire::Message> messages = adapter.takeMessages();
    takenMasks += masksAmong(messages);
    for (const Wire::Message& message : messages) {
        if (message.kind == Wire::Message::Read) {
            reads.append(message.value);
            adapter.post(answers.value(message.value, Wire::reading(25.0)) + "\r\n");
        } else if (message.kind == Wire::Message::SetPoint) {
            setPoints.append(message.bytes);
            adapter.post("\x06\r\n");
        }
    }
    return !messages.isEmpty();
}
