#include "growthcheck/output/findingtext.h"

#include "growthcheck/check/words.h"
#include "growthcheck/output/textlines.h"

#include <QStringList>

namespace GrowthCheck {

namespace {

QString findingText(const Finding& finding)
{
    constexpr int indent = 4;
    const QString place = placeOf(finding);
    QString head
        = QStringLiteral("  %1 %2").arg(severityName(finding.kind.severity), QLatin1String(finding.kind.id));
    if (!place.isEmpty()) {
        head += QLatin1String("  ") + place;
    }
    QString text = finding.text;
    if (finding.count > 1) {
        text += Words::tr(" (%1 times)").arg(finding.count);
    }
    return head + QLatin1Char('\n') + wrapped(QString(), text, indent);
}

} // namespace

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return Words::tr("note");
    case Severity::Warning:
        return Words::tr("warning");
    case Severity::Error:
        break;
    }
    return Words::tr("error");
}

// Where it was found: "line 7, step 3, pass 2, Ga".
QString placeOf(const Finding& finding)
{
    QStringList places;
    if (finding.line > 0 && finding.step == 0) {
        places.append(Words::tr("line %1").arg(finding.line));
    }
    if (finding.step > 0) {
        places.append(Words::tr("step %1").arg(finding.step));
    }
    if (finding.pass > 0) {
        places.append(Words::tr("pass %1").arg(finding.pass));
    }
    if (finding.channel >= 0) {
        places.append(channelName(finding.channel));
    }
    return places.join(QLatin1String(", "));
}

QString findingsText(const Findings& findings)
{
    if (findings.isEmpty()) {
        return QLatin1Char('\n') + Words::tr("Nothing was found.") + QLatin1Char('\n');
    }
    QString text = QLatin1Char('\n') + Words::tr("Findings") + QLatin1Char('\n');
    for (const Finding& finding : findings) {
        text += findingText(finding);
    }
    return text;
}

} // namespace GrowthCheck
