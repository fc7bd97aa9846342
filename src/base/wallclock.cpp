#include "base/wallclock.h"

#include "base/awakeclock.h"

#include <QDateTime>

namespace WallClock {

qint64 carriedOnMs()
{
    static const qint64 offsetMs = QDateTime::currentMSecsSinceEpoch() - awakeMs();
    return offsetMs + awakeMs();
}

Source source = &carriedOnMs;

} // namespace WallClock
