#include "growthcheck/rehearsal/assumptions.h"

#include "temperature/polling.h"

namespace GrowthCheck {

qint64 Assumptions::roundMs() const
{
    const int waits = qMax(0, (replyMs - 1) / Polling::tickMs);
    return Polling::leastRoundMs + Channels::count * 2 * waits * Polling::tickMs;
}

} // namespace GrowthCheck
