#include "program/programfile.h"

#include "base/number.h"

#include <QStringList>
#include <QTextStream>

namespace ProgramFile {

namespace {

constexpr int firstSetPoint = FirstCellColumn;
constexpr int firstShutter = TimeColumn;
constexpr int timeField = TimeColumn + Channels::shutterCount;
constexpr int groupField = GroupColumn + Channels::shutterCount;
constexpr int timesField = TimesColumn + Channels::shutterCount;
constexpr int fieldCount = ProgramColumns + Channels::shutterCount;
static_assert(fieldCount == 20,
    "the programs that laboratories have saved are lines of 20 fields: say how they are read");
static_assert(timesField == fieldCount - 1, "a new column of the table has to be written and read here");

// An empty group would vanish between its two tabs and shift the repeat count.
const QLatin1String noGroup("---NoGroup---");

} // namespace

void write(QTextStream& stream, const QVector<ProgramStep>& steps)
{
    for (int k = 0; k < steps.size(); ++k) {
        const ProgramStep& step = steps[k];
        stream << k << '\t';
        for (const QString& setPoint : step.setPoints) {
            stream << setPoint << '\t';
        }
        for (const bool open : step.shutters) {
            stream << (open ? 1 : 0) << '\t';
        }
        stream << step.timeSec << '\t';
        if (step.group.simplified().isEmpty()) {
            stream << noGroup;
        } else {
            stream << step.group;
        }
        stream << '\t' << step.times << '\n';
    }
}

std::optional<ProgramStep> stepOf(const QString& line)
{
    const QStringList fields = line.simplified().split(QLatin1Char(' '));
    if (fields.size() < fieldCount) {
        return std::nullopt;
    }
    ProgramStep step;
    for (int i = 0; i < Channels::count; ++i) {
        step.setPoints[static_cast<size_t>(i)] = fields[firstSetPoint + i];
    }
    for (int i = 0; i < Channels::shutterCount; ++i) {
        step.shutters[static_cast<size_t>(i)] = fields[firstShutter + i].toInt() == 1;
    }
    step.timeSec = readNumber(fields[timeField]).value_or(0.0);
    step.group = fields[groupField] == noGroup ? QString() : fields[groupField];
    step.times = fields[timesField].toInt();
    return step;
}

QVector<ProgramStep> read(QTextStream& stream, int limit)
{
    QVector<ProgramStep> steps;
    QString line;
    while (steps.size() < limit && stream.readLineInto(&line)) {
        if (const std::optional<ProgramStep> step = stepOf(line)) {
            steps.append(*step);
        }
    }
    return steps;
}

} // namespace ProgramFile
