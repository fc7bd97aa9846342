#include "benchmarks/station/firstpaint.h"

#include "support/steadyclock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <cstdio>
#include <utility>

FirstPaint::FirstPaint(QWidget& window, std::function<void()> then)
    : afterwards(std::move(then))
{
    window.installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Paint && !isPainted) {
        isPainted = true;
        // The window's own paint comes first and those of its widgets follow in the same go: what is queued
        // runs after all of them.
        QMetaObject::invokeMethod(
            this, [this] { report(); }, Qt::QueuedConnection);
    }
    return false;
}

void FirstPaint::report()
{
    std::printf("painted %lld\n", static_cast<long long>(steadyNowNs()));
    if (afterwards) {
        afterwards();
    }
    std::fflush(stdout);
    QCoreApplication::quit();
}
