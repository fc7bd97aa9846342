#include "support/ticks.h"

#include "base/wallclock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>
#include <QTimer>

namespace {

qint64 drivenNowMs = 0;

qint64 readDriven()
{
    return drivenNowMs;
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
    if (event->type() != QEvent::Timer) {
        return false;
    }
    const auto* timer = qobject_cast<QTimer*>(receiver);
    return timer != nullptr && timer->interval() == 10 && timer->parent() == nullptr;
}

DrivenClock::DrivenClock(qint64 nowMs)
{
    drivenNowMs = nowMs;
    WallClock::source = &readDriven;
    WallClock::systemSource = &readDriven;
}

DrivenClock::~DrivenClock()
{
    WallClock::source = &WallClock::carriedOnMs;
    WallClock::systemSource = &WallClock::steppingMs;
}

void DrivenClock::advance(qint64 ms)
{
    drivenNowMs += ms;
}

void DrivenClock::set(qint64 nowMs)
{
    drivenNowMs = nowMs;
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
