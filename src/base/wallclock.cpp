#include "base/wallclock.h"

#include "base/awakeclock.h"

#include <QDateTime>

namespace WallClock {

qint64 carriedOnMs()
{
    static const qint64 offsetMs = steppingMs() - awakeMs();
    return offsetMs + awakeMs();
}

qint64 steppingMs()
{
    return QDateTime::currentMSecsSinceEpoch();
}

Source source = &carriedOnMs;
Source systemSource = &steppingMs;
Source sleepSource = &::sleptMs;

} // namespace WallClock
