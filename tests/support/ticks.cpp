#include "support/ticks.h"

#include "base/awakeclock.h"
#include "base/wallclock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>
#include <QTimer>

namespace {

qint64 drivenNowMs = 0;
qint64 steppedMs = 0; // the system's clock, beyond the steady one's time and sleep
qint64 drivenSleptMs = 0;

qint64 readDriven()
{
    return drivenNowMs;
}

qint64 readSystem()
{
    return drivenNowMs + drivenSleptMs + steppedMs;
}

qint64 readSlept()
{
    return drivenSleptMs;
}

// The timer that the event is for, where it belongs to no other object.
const QTimer* ownTimer(QObject* receiver, QEvent* event)
{
    const auto* timer = event->type() == QEvent::Timer ? qobject_cast<QTimer*>(receiver) : nullptr;
    return timer != nullptr && timer->parent() == nullptr ? timer : nullptr;
}

} // namespace

HeldTicks::HeldTicks()
{
    QCoreApplication::instance()->installEventFilter(this);
}

HeldTicks::~HeldTicks()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

bool HeldTicks::eventFilter(QObject* receiver, QEvent* event)
{
    const QTimer* timer = ownTimer(receiver, event);
    return timer != nullptr && timer->interval() == 10;
}

FiredTimers::FiredTimers()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool FiredTimers::eventFilter(QObject* receiver, QEvent* event)
{
    const QTimer* timer = ownTimer(receiver, event);
    // Those without an interval are how the toolkit puts work off.
    if (timer != nullptr && timer->interval() > 0) {
        fired[timer->interval()] = QString::number(timer->interval());
    }
    return false;
}

QString FiredTimers::intervals() const
{
    return QStringList(fired.values()).join(QLatin1Char(' '));
}

DrivenClock::DrivenClock(qint64 nowMs)
{
    drivenNowMs = nowMs;
    steppedMs = 0;
    drivenSleptMs = 0;
    WallClock::source = &readDriven;
    WallClock::systemSource = &readSystem;
    WallClock::sleepSource = &readSlept;
}

DrivenClock::~DrivenClock()
{
    WallClock::source = &WallClock::carriedOnMs;
    WallClock::systemSource = &WallClock::steppingMs;
    WallClock::sleepSource = &sleptMs;
}

void DrivenClock::advance(qint64 ms)
{
    drivenNowMs += ms;
}

void DrivenClock::set(qint64 nowMs)
{
    drivenNowMs = nowMs;
}

void DrivenClock::stepSystem(qint64 ms)
{
    steppedMs += ms;
}

void DrivenClock::sleep(qint64 ms)
{
    drivenSleptMs += ms;
}

qint64 DrivenClock::nowMs()
{
    return drivenNowMs;
}

void callSlot(QObject* object, const char* slot, int times)
{
    for (int i = 0; i < times; ++i) {
        if (!QMetaObject::invokeMethod(object, slot, Qt::DirectConnection)) {
            qFatal("no slot %s", slot);
        }
    }
}
