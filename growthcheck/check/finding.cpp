#include "growthcheck/check/finding.h"

#include <algorithm>

namespace GrowthCheck {

void addOnce(Findings& findings, const Finding& finding)
{
    const auto same = std::find_if(findings.begin(), findings.end(), [&finding](const Finding& other) {
        return other.kind.id == finding.kind.id && other.step == finding.step
            && other.channel == finding.channel;
    });
    if (same != findings.end()) {
        same->count += finding.count;
        return;
    }
    findings.append(finding);
}

Severity worst(const Findings& findings)
{
    Severity severity = Severity::Note;
    for (const Finding& finding : findings) {
        severity = std::max(severity, finding.kind.severity);
    }
    return severity;
}

QString severityWord(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStringLiteral("note");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Error:
        break;
    }
    return QStringLiteral("error");
}

} // namespace GrowthCheck
