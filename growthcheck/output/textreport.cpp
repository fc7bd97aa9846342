// The report for a terminal.

#include "growthcheck/output/findingtext.h"
#include "growthcheck/output/output.h"
#include "growthcheck/output/reportparts.h"
#include "growthcheck/output/textlines.h"
#include "growthcheck/output/timelinetext.h"

namespace GrowthCheck {

void writeText(const CheckedProgram& checked, const Sink& sink)
{
    sink(checked.program.fileName.toUtf8() + '\n');
    for (const QString& line : summaryLines(checked)) {
        sink(wrapped(QStringLiteral("  "), line, 2).toUtf8());
    }
    sink(findingsText(checked.findings).toUtf8());
    writeTimeline(checked, sink);
    if (checked.layers) {
        writeLayers(*checked.layers, sink);
    }
}

} // namespace GrowthCheck
