#include "app/pcguard.h"

#include "base/shutdownblock.h"
#include "base/throttling.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QWidget>

#include <utility>

namespace {

constexpr int lookEveryMs = 1000;

QString outcome(const PlatformRefusal& refusal)
{
    return refusal.isRefusal() ? QStringLiteral("refused: ") + refusal.inEnglish() : QStringLiteral("done");
}

} // namespace

PcGuard::PcGuard(QWidget& guarded, std::function<Work()> whatIsDone)
    : window(guarded)
    , work(std::move(whatIsDone))
{
    // The toolkit would close the window when it is only asked whether the session may end.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, &PcGuard::answerSessionEnd, Qt::DirectConnection);
    connect(&timer, &QTimer::timeout, this, &PcGuard::look);
}

void PcGuard::start()
{
    emit asked(QStringLiteral("no-throttling"), outcome(refuseThrottling()));
    timer.start(lookEveryMs);
}

void PcGuard::look()
{
    const Work now = work();
    if (now == seen) {
        return;
    }
    keepAwake(now);
    if ((now == Work::Program) != (seen == Work::Program)) {
        holdUpSessionEnd(now == Work::Program);
    }
    seen = now;
}

void PcGuard::keepAwake(Work now)
{
    if (now == Work::None) {
        awake.release();
        emit asked(QStringLiteral("may-sleep"), outcome({}));
        return;
    }
    const QString reason
        = now == Work::Program ? tr("A growth program is playing.") : tr("A cell's temperature is ramping.");
    emit asked(QStringLiteral("awake"), outcome(awake.hold(reason)));
}

void PcGuard::holdUpSessionEnd(bool isPlaying)
{
    if (isPlaying) {
        const PlatformRefusal refusal = blockShutdown(window.winId(), tr("A growth program is playing."));
        holdsUpSessionEnd = !refusal.isRefusal();
        emit asked(QStringLiteral("hold-session-end"), outcome(refusal));
    } else if (holdsUpSessionEnd) {
        allowShutdown(window.winId());
        holdsUpSessionEnd = false;
    }
}

void PcGuard::answerSessionEnd(QSessionManager& manager)
{
    look();
    if (holdsUpSessionEnd) {
        manager.cancel();
    }
    emit sessionEnds(holdsUpSessionEnd);
}
