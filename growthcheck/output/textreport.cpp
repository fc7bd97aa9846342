// The report for a terminal.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/findingtext.h"
#include "growthcheck/output/output.h"
#include "growthcheck/output/textlines.h"
#include "growthcheck/output/timelinetext.h"

namespace GrowthCheck {

namespace {

QString summary(const CheckedProgram& checked)
{
    const Timeline& timeline = checked.timeline;
    QString text = QStringLiteral("%1\n").arg(checked.program.fileName);
    text += wrapped(QStringLiteral("  "),
        Words::tr("steps in the table: %1; starts of steps: %2; holds: %3")
            .arg(checked.program.steps.size())
            .arg(timeline.starts)
            .arg(timeline.holds),
        2);
    text += wrapped(QStringLiteral("  "),
        Words::tr("total shown: %1 s; plays: %2")
            .arg(
                QString::number(timeline.shownTotalSec, 'f', 1), elapsedText(timeline.endMs, timeline.holds)),
        2);
    if (checked.assumptions.runAt.isValid()) {
        text += wrapped(QStringLiteral("  "),
            Words::tr("Run at %1; ends %2")
                .arg(checked.assumptions.runAt.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                    endText(checked.assumptions.runAt, timeline.endMs)),
            2);
    }
    return text;
}

} // namespace

void writeText(const CheckedProgram& checked, const Sink& sink)
{
    sink(summary(checked).toUtf8());
    sink(findingsText(checked.findings).toUtf8());
    writeTimeline(checked, sink);
    if (checked.layers) {
        writeLayers(*checked.layers, sink);
    }
}

} // namespace GrowthCheck
