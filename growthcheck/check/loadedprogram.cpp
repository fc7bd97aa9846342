#include "growthcheck/check/loadedprogram.h"

#include "growthcheck/check/kinds.h"
#include "growthcheck/check/lineruns.h"
#include "growthcheck/check/textfindings.h"
#include "growthcheck/check/words.h"
#include "program/programfile.h"
#include "program/steprows.h"

#include <algorithm>

namespace GrowthCheck {

namespace {

using ProgramFile::Line;

// Takes in a file line by line: its steps, and what has to be said of each line.
class Intake
{
public:
    explicit Intake(LoadedProgram& target)
        : program(target)
    {
    }

    bool take(const Line& line)
    {
        switch (line.kind) {
        case Line::Kind::Step:
            takeStep(line);
            break;
        case Line::Kind::Empty:
            return true;
        case Line::Kind::TooShort:
            add(looksLikeAStep(line) ? skipped : remarks, line);
            break;
        case Line::Kind::TooLong:
            add(tooLong, line);
            break;
        }
        return true;
    }

    void conclude()
    {
        if (program.steps.isEmpty()) {
            tell(Kinds::noSteps,
                Words::tr("No line of the file says a step: the table is empty afterwards, and a run ends at "
                          "once."));
        }
        tell(Kinds::lineSkipped, skipped,
            Words::tr("Fewer than 20 fields: the station skips what looks like a step (lines %1)."));
        tell(Kinds::remark, remarks, Words::tr("Fewer than 20 fields: skipped as a remark (lines %1)."));
        tell(Kinds::lineTooLong, tooLong,
            Words::tr("More than 65,536 characters: the station skips them (lines %1)."));
        tell(Kinds::surplusRow, surplus,
            Words::tr("The table has 200 rows: the steps behind them are not loaded (lines %1)."));
    }

private:
    // As a step does, it begins with a number; a remark in words does not.
    static bool looksLikeAStep(const Line& line)
    {
        const auto first = std::find_if(
            line.text.begin(), line.text.end(), [](QChar character) { return !character.isSpace(); });
        return first != line.text.end() && first->isDigit();
    }

    void takeStep(const Line& line)
    {
        if (program.steps.size() == programRows) {
            add(surplus, line);
            return;
        }
        lastRuns = nullptr;
        program.steps.append(line.step);
        program.lines.append(line.number);
        checkTexts(line, program.steps.size(), hasEnded, program.findings);
        hasEnded = hasEnded || line.step.timeSec == 0.0;
    }

    void add(LineRuns& runs, const Line& line)
    {
        runs.add(line.number, lastRuns == &runs);
        lastRuns = &runs;
    }

    void tell(const Kind& kind, const QString& text, int line = 0)
    {
        Finding finding;
        finding.kind = kind;
        finding.text = text;
        finding.line = line;
        program.findings.append(finding);
    }

    void tell(const Kind& kind, const LineRuns& runs, const QString& text)
    {
        if (!runs.isEmpty()) {
            tell(kind, text.arg(runs.text()), runs.first());
        }
    }

    LoadedProgram& program;
    bool hasEnded = false; // a time of 0 came, behind which no step is played
    LineRuns skipped;
    LineRuns remarks;
    LineRuns tooLong;
    LineRuns surplus;
    const LineRuns* lastRuns = nullptr; // where the line before went
};

} // namespace

std::optional<LoadedProgram> loadProgram(const QString& fileName)
{
    LoadedProgram program;
    program.fileName = fileName;
    Intake intake(program);
    if (!ProgramFile::readLines(fileName, [&intake](const Line& line) { return intake.take(line); })) {
        return std::nullopt;
    }
    intake.conclude();
    return program;
}

} // namespace GrowthCheck
