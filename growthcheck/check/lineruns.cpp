#include "growthcheck/check/lineruns.h"

#include "growthcheck/check/words.h"

#include <QStringList>

namespace GrowthCheck {

namespace {

constexpr int mostRuns = 12;

}

void LineRuns::add(int line, bool isNext)
{
    if (isNext && further == 0 && !runs.isEmpty()) {
        runs.last().last = line;
    } else if (runs.size() < mostRuns) {
        runs.append({line, line});
    } else {
        ++further;
    }
}

QString LineRuns::text() const
{
    QStringList texts;
    for (const Run& run : runs) {
        texts.append(run.first == run.last ? QString::number(run.first)
                                           : Words::tr("%1 to %2").arg(run.first).arg(run.last));
    }
    const QString list = texts.join(QLatin1String(", "));
    return further == 0 ? list : Words::tr("%1 and %2 more").arg(list).arg(further);
}

} // namespace GrowthCheck
