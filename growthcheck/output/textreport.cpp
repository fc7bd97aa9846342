// The report for a terminal.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/output.h"
#include "growthcheck/output/textlines.h"
#include "growthcheck/output/timelinetext.h"

namespace GrowthCheck {

namespace {

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
