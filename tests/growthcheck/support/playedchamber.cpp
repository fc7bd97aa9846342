#include "growthcheck/support/playedchamber.h"

#include "base/number.h"
#include "support/ticks.h"

#include <QCoreApplication>

using namespace TestText;

namespace {

constexpr qint64 tickMs = 10;
constexpr int patience = 1000; // turns of the event loop

} // namespace

PlayedChamber::PlayedChamber(Station& theStation)
    : station(theStation)
{
    degrees.fill(25.0);
}

void PlayedChamber::tick()
{
    DrivenClock::advance(tickMs);
    reply();
    turnTimers();
    takeMessages();
}

void PlayedChamber::ticks(int count)
{
    for (int i = 0; i < count; ++i) {
        tick();
    }
}

void PlayedChamber::settle()
{
    const int ticksPerReading = 4 + 2 * replyTicks;
    ticks(2 * Channels::count * ticksPerReading);
}

void PlayedChamber::reply()
{
    const QByteArray bytes = replies.takeDue(DrivenClock::nowMs());
    if (!bytes.isEmpty() && station.adapter.isConnected()) {
        station.adapter.post(bytes);
        QCoreApplication::processEvents();
    }
}

void PlayedChamber::answer(const QByteArray& line, int channel)
{
    const qint64 dueMs = DrivenClock::nowMs() + replyTicks * tickMs;
    if (faults) {
        obey(faults->decide(line, channel + 1), dueMs);
    } else {
        replies.push(line + "\r\n", dueMs);
    }
}

void PlayedChamber::obey(const Chamber::Delivery& delivery, qint64 dueMs)
{
    if (delivery.link == Chamber::Delivery::Link::Cut) {
        station.adapter.cut();
        return;
    }
    isHalfOpen = isHalfOpen || delivery.link == Chamber::Delivery::Link::HalfOpen;
    for (int i = 0; i < delivery.pieces.size(); ++i) {
        const Chamber::Delivery::Piece& piece = delivery.pieces[i];
        if (delivery.waitsForNext && i == delivery.pieces.size() - 1) {
            replies.pushWaiting(piece.bytes, dueMs + piece.delayMs);
        } else {
            replies.push(piece.bytes, dueMs + piece.delayMs);
        }
    }
}

// In the order in which timers that are due at once may fire.
void PlayedChamber::turnTimers()
{
    fireShutterTimer();
    if (isPollingFirst) {
        station.tick();
    }
    if (station.program().isRunning()) {
        callSlot(&station.window(), "APOneTick");
    }
    if (!isPollingFirst) {
        station.tick();
    }
    for (const QString& text : MessageCapture::texts()) {
        isShutterTimerOn = isShutterTimerOn || text == "Shutter retrying"_s;
    }
    MessageCapture::clear();
}

// The station's own timer is held: what it says when it starts the timer tells that it runs.
void PlayedChamber::fireShutterTimer()
{
    if (isShutterTimerOn) {
        isShutterTimerOn = false;
        callSlot(&station.window(), "ActionShutter");
    }
}

void PlayedChamber::takeMessages()
{
    for (int turn = 0; turn < 2; ++turn) {
        QCoreApplication::processEvents();
    }
    const qint64 now = DrivenClock::nowMs();
    for (const Wire::Message& message : station.adapter.takeMessages()) {
        if (isHalfOpen) {
            continue;
        }
        QByteArray line = "OK";
        if (message.kind == Wire::Message::Read) {
            line = Wire::reading(degrees.at(static_cast<size_t>(message.value)), message.value);
        } else if (message.kind == Wire::Message::SetPoint) {
            const QByteArray value = message.bytes.mid(6, message.bytes.indexOf('\x03') - 6);
            degrees.at(static_cast<size_t>(message.value)) = readNumber(value).value_or(0.0);
        }
        if (message.kind == Wire::Message::Read || message.kind == Wire::Message::SetPoint) {
            answer(line, message.value);
        }
        if (message.kind == Wire::Message::SetPoint || message.kind == Wire::Message::Shutters) {
            arrivals.append({now, message});
        }
    }
    if (replyTicks == 0) {
        reply();
    }
}

QList<PlayedChamber::Arrival> PlayedChamber::takeArrivals()
{
    const QList<Arrival> taken = arrivals;
    arrivals.clear();
    return taken;
}
