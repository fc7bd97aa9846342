#include "app/checkpc.h"

#include "base/powerrequest.h"
#include "base/throttling.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <cmath>

namespace {

constexpr int stationIntervalMs = 10;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PcCheck)
};

TickLateness measureTicks(int seconds)
{
    TickLateness ticks(stationIntervalMs);
    QElapsedTimer clock;
    QTimer timer;
    QEventLoop loop;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        ticks.tick(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        if (clock.elapsed() >= qint64(1000) * seconds) {
            loop.quit();
        }
    });
    clock.start();
    timer.start(stationIntervalMs);
    loop.exec();
    return ticks;
}

QString tickTable(const TickLateness& ticks)
{
    QString table = Texts::tr("Ticks of 10 ms: %1, one every %2 ms, the latest %3 ms late\n")
                        .arg(ticks.count())
                        .arg(ticks.meanIntervalMs(), 0, 'f', 2)
                        .arg(ticks.latestMs(), 0, 'f', 1);
    for (const TickLateness::Class& one : ticks.classes()) {
        const QString figures = QStringLiteral("%1  ").arg(one.ticks, 8);
        table += figures
            + (std::isinf(one.upToMs) ? Texts::tr("later than that\n")
                                      : Texts::tr("up to %1 ms late\n").arg(one.upToMs));
    }
    return table;
}

QString duration(int seconds)
{
    return seconds == 0 ? Texts::tr("never") : Texts::tr("after %1 min").arg(seconds / 60);
}

QString outcome(const PlatformRefusal& refusal)
{
    return refusal.isRefusal() ? Texts::tr("no (%1)").arg(refusal.inWords()) : Texts::tr("yes");
}

QString powerTable(const std::optional<PowerSettings>& power)
{
    if (!power) {
        return Texts::tr("This system does not tell when it sleeps.\n");
    }
    return Texts::tr("Power plan: %1\n").arg(power->plan)
        + Texts::tr("Sleeps, on mains: %1\n").arg(duration(power->sleepAfterSec))
        + Texts::tr("Hibernates, on mains: %1\n").arg(duration(power->hibernateAfterSec));
}

bool sleepsByItself(const std::optional<PowerSettings>& power)
{
    return power && (power->sleepAfterSec != 0 || power->hibernateAfterSec != 0);
}

} // namespace

bool PcCheck::isPassed() const
{
    return ticks.isFine() && !sleepsByItself(power);
}

QString PcCheck::report() const
{
    QString text = tickTable(ticks) + QLatin1Char('\n') + powerTable(power)
        + Texts::tr("Kept awake while a program plays or a ramp runs: %1\n").arg(outcome(awake))
        + Texts::tr("Timers kept fine under a covered window: %1\n").arg(outcome(throttling))
        + QLatin1Char('\n');
    if (!ticks.isFine()) {
        text += Texts::tr("The ticks are too late: steps and ramps would be late with them.\n");
    }
    if (sleepsByItself(power)) {
        text += Texts::tr("The PC sleeps or hibernates by itself: nobody would watch the cells then. Set "
                          "sleep and hibernation to \"never\".\n");
    }
    if (isPassed()) {
        text += Texts::tr("This PC can run the station.\n");
    }
    return text;
}

PcCheck checkPc(int seconds)
{
    const PlatformRefusal throttling = refuseThrottling();
    PowerRequest request;
    const PlatformRefusal awake = request.hold(Texts::tr("The PC is being checked"));
    return {measureTicks(seconds), powerSettings(), throttling, awake};
}
