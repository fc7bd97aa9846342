#include "journal/timewatch.h"

namespace {

qint64 ifWorthTelling(qint64 ms)
{
    return qAbs(ms) > TimeWatch::worthTellingMs ? ms : 0;
}

} // namespace

TimeWatch::Findings TimeWatch::look(const Clocks& now)
{
    Findings found;
    if (hasLooked) {
        const qint64 passedMs = now.steadyMs - before.steadyMs;
        const qint64 sleptMs = now.sleptMs - before.sleptMs;
        found.steppedMs = ifWorthTelling(now.systemMs - before.systemMs - passedMs - sleptMs);
        found.sleptMs = ifWorthTelling(sleptMs);
        found.lateMs = ifWorthTelling(passedMs - tick);
    }
    before = now;
    hasLooked = true;
    return found;
}
