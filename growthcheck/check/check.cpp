#include "growthcheck/check/check.h"

#include "growthcheck/check/rowfindings.h"
#include "growthcheck/check/timelinefindings.h"
#include "growthcheck/rehearsal/rehearsal.h"

#include <algorithm>
#include <tuple>

namespace GrowthCheck {

CheckedProgram checkProgram(
    const LoadedProgram& program, const Assumptions& assumptions, const std::optional<Rates>& rates)
{
    CheckedProgram checked;
    checked.program = program;
    checked.assumptions = assumptions;
    checked.timeline = rehearse(program.steps, assumptions);
    checked.findings = program.findings + checkRows(program.steps, assumptions.roundMs())
        + checkTimeline(checked.timeline, assumptions);
    if (rates) {
        checked.layers = layersOf(checked.timeline, *rates);
        checked.findings += checkRates(checked.timeline, *rates);
    }
    for (Finding& finding : checked.findings) {
        if (finding.line == 0 && finding.step > 0 && finding.step <= program.lines.size()) {
            finding.line = program.lines[finding.step - 1];
        }
    }
    sortFindings(checked.findings);
    return checked;
}

void sortFindings(Findings& findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return std::tuple(-static_cast<int>(a.kind.severity), a.step, a.line)
            < std::tuple(-static_cast<int>(b.kind.severity), b.step, b.line);
    });
}

} // namespace GrowthCheck
