#include "growthcheck/check/textfindings.h"

#include "base/number.h"
#include "growthcheck/check/kinds.h"
#include "growthcheck/check/likelynumber.h"
#include "growthcheck/check/words.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

constexpr double highestDegC = 9999.9; // that fits the six characters of a set point

class TextCheck
{
public:
    TextCheck(const ProgramFile::Line& checkedLine, int stepNumber, bool isBehindEnd, Findings& target)
        : line(checkedLine)
        , step(stepNumber)
        , isNotReached(isBehindEnd)
        , findings(target)
    {
    }

    void checkLine()
    {
        if (line.hasMore) {
            tell(Kinds::surplusField,
                Words::tr(
                    "More than 20 fields, of which the station takes the first 20: a blank in a group's "
                    "name or in a set point shifts what follows."));
        }
        if (line.text.contains(QChar::ReplacementCharacter)) {
            tell(Kinds::damagedText,
                Words::tr("Some characters cannot be read: the file was written in another encoding."));
        }
    }

    // Told once: when a line is missing, all that follow are off.
    void checkNumber()
    {
        bool isNumber = false;
        const int number = line.fields[0].toInt(&isNumber);
        if (isNumber && number == step - 1) {
            return;
        }
        const bool isTold = std::any_of(findings.begin(), findings.end(),
            [](const Finding& finding) { return finding.kind.id == Kinds::rowNumber.id; });
        if (!isTold) {
            tell(Kinds::rowNumber,
                Words::tr("The line is numbered %1 where %2 is due: lines fill the table in their order, "
                          "whatever their numbers.")
                    .arg(quoted(line.fields[0]), QString::number(step - 1)));
        }
    }

    void checkSetPoint(int channel)
    {
        const QString& text = line.fields[ProgramFile::firstSetPointField + channel];
        const std::optional<double> degC = readNumber(text);
        if (!degC) {
            tell(Kinds::setPointText,
                Words::tr("The set point %1 is not a number and counts as 0: the channel is left alone.%2")
                    .arg(quoted(text), likelyNumberHint(text)),
                channel);
        } else if (*degC < 0.0) {
            tell(Kinds::setPointNegative,
                Words::tr("The set point %1 is below 0: the channel is left alone.").arg(quoted(text)),
                channel);
        } else if (*degC > highestDegC) {
            tell(Kinds::setPointWide,
                Words::tr("The set point %1 takes more than the six characters of a controller's message.")
                    .arg(quoted(text)),
                channel);
        }
    }

    void checkShutter(int shutter)
    {
        const QString& text = line.fields[ProgramFile::firstShutterField + shutter];
        if (text == QLatin1String("0") || text == QLatin1String("1")) {
            return;
        }
        const bool isOpen = line.step.shutters.at(static_cast<size_t>(shutter));
        tell(Kinds::shutterText,
            (isOpen ? Words::tr("The shutter's %1 is neither 0 nor 1, and counts as open.")
                    : Words::tr("The shutter's %1 is neither 0 nor 1, and counts as closed."))
                .arg(quoted(text)),
            shutter);
    }

    void checkTime()
    {
        const QString& text = line.fields[ProgramFile::timeField];
        const std::optional<double> timeSec = readNumber(text);
        if (!timeSec) {
            tell(Kinds::timeText,
                (isNotReached
                        ? Words::tr("The time %1 is not a number and counts as 0.%2")
                        : Words::tr("The time %1 is not a number and counts as 0: the program ends here.%2"))
                    .arg(quoted(text), likelyNumberHint(text)));
        } else if (*timeSec != line.step.timeSec) {
            tell(Kinds::timeRounded,
                Words::tr("The table keeps six digits of the time %1: it plays %2 s.")
                    .arg(quoted(text), QString::number(line.step.timeSec, 'g', 6)));
        }
    }

    void checkTimes()
    {
        const QString& text = line.fields[ProgramFile::timesField];
        bool isNumber = false;
        text.toInt(&isNumber);
        if (!isNumber) {
            bool isAdviceNumber = false;
            likelyNumber(text).toInt(&isAdviceNumber);
            tell(Kinds::timesText,
                Words::tr("The repeat count %1 is not a whole number and counts as 0: a group that begins "
                          "here is played once.%2")
                    .arg(quoted(text), isAdviceNumber ? likelyNumberHint(text) : QString()));
        }
    }

private:
    void tell(const Kind& kind, const QString& text, int channel = -1)
    {
        Finding finding;
        finding.kind = kind;
        if (isNotReached) {
            finding.kind.severity = Severity::Note;
        }
        finding.text = text;
        finding.line = line.number;
        finding.step = step;
        finding.channel = channel;
        findings.append(finding);
    }

    const ProgramFile::Line& line;
    int step;
    bool isNotReached;
    Findings& findings;
};

} // namespace

void checkTexts(const ProgramFile::Line& line, int step, bool isBehindEnd, Findings& findings)
{
    TextCheck check(line, step, isBehindEnd, findings);
    check.checkLine();
    check.checkNumber();
    for (int channel = 0; channel < Channels::count; ++channel) {
        check.checkSetPoint(channel);
    }
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        check.checkShutter(shutter);
    }
    check.checkTime();
    check.checkTimes();
}

} // namespace GrowthCheck
