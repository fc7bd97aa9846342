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

class PcCheckTexts
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
    QString table = PcCheckTexts::tr("Ticks of 10 ms: %1, one every %2 ms, the latest %3 ms late\n")
                        .arg(ticks.count())
                        .arg(ticks.meanIntervalMs(), 0, 'f', 2)
                        .arg(ticks.latestMs(), 0, 'f', 1);
    for (const TickLateness::Class& one : ticks.classes()) {
        const QString figures = QStringLiteral("%1  ").arg(one.ticks, 8);
        table += figures
            + (std::isinf(one.upToMs) ? PcCheckTexts::tr("later than that\n")
                                      : PcCheckTexts::tr("up to %1 ms late\n").arg(one.upToMs));
    }
    return table;
}

QString duration(int seconds)
{
    return seconds == 0 ? PcCheckTexts::tr("never") : PcCheckTexts::tr("after %1 min").arg(seconds / 60);
}

QString outcome(const PlatformRefusal& refusal)
{
    return refusal.isRefusal() ? PcCheckTexts::tr("no (%1)").arg(refusal.inWords()) : PcCheckTexts::tr("yes");
}

QString powerTable(const std::optional<PowerSettings>& power)
{
    if (!power) {
        return PcCheckTexts::tr("This system does not tell when it sleeps.\n");
    }
    return PcCheckTexts::tr("Power plan: %1\n").arg(power->plan)
        + PcCheckTexts::tr("Sleeps, on mains: %1\n").arg(duration(power->sleepAfterSec))
        + PcCheckTexts::tr("Hibernates, on mains: %1\n").arg(duration(power->hibernateAfterSec));
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
        + PcCheckTexts::tr("Kept awake while a program plays or a ramp runs: %1\n").arg(outcome(awake))
        + PcCheckTexts::tr("Timers kept fine under a covered window: %1\n").arg(outcome(throttling))
        + QLatin1Char('\n');
    if (!ticks.isFine()) {
        text += PcCheckTexts::tr("The ticks are too late: steps and ramps would be late with them.\n");
    }
    if (sleepsByItself(power)) {
        text += PcCheckTexts::tr(
            "The PC sleeps or hibernates by itself: nobody would watch the cells then. Set "
            "sleep and hibernation to \"never\".\n");
    }
    if (isPassed()) {
        text += PcCheckTexts::tr("This PC can run the station.\n");
    }
    return text;
}

PcCheck checkPc(int seconds)
{
    const PlatformRefusal throttling = refuseThrottling();
    PowerRequest request;
    const PlatformRefusal awake = request.hold(PcCheckTexts::tr("The PC is being checked"));
    return {measureTicks(seconds), powerSettings(), throttling, awake};
}
