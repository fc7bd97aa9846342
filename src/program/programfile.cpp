#include "program/programfile.h"

#include "base/number.h"

#include <QFile>
#include <QFileInfo>
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

constexpr int longestLine = 64 * 1024; // characters
constexpr qint64 largestFile = qint64{16} * 1024 * 1024;

// An empty group would vanish between its two tabs and shift the repeat count.
const QLatin1String noGroup("---NoGroup---");

// The first fields of a line, as many as a step has: a line may hold thousands.
QStringList fieldsOf(const QString& line)
{
    QStringList fields;
    int end = 0;
    while (fields.size() < fieldCount) {
        int start = end;
        while (start < line.size() && line[start].isSpace()) {
            ++start;
        }
        end = start;
        while (end < line.size() && !line[end].isSpace()) {
            ++end;
        }
        if (start == end) {
            break;
        }
        fields.append(line.mid(start, end - start));
    }
    return fields;
}

// The next line, empty when it is too long to be a step; it is read in pieces then and never held whole.
// False at the end of the text.
bool readBoundedLine(QTextStream& stream, QString& line)
{
    if (!stream.readLineInto(&line, longestLine + 1)) {
        return false;
    }
    const bool isTooLong = line.size() > longestLine;
    while (line.size() > longestLine) {
        stream.readLineInto(&line, longestLine + 1);
    }
    if (isTooLong) {
        line.clear();
    }
    return true;
}

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
    const QStringList fields = fieldsOf(line);
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
    while (steps.size() < limit && readBoundedLine(stream, line)) {
        if (const std::optional<ProgramStep> step = stepOf(line)) {
            steps.append(*step);
        }
    }
    return steps;
}

std::optional<QVector<ProgramStep>> load(const QString& fileName, int limit)
{
    QFile file(fileName);
    // Anything but a plain file (a device, a pipe) might never end.
    const bool isPlain = QFileInfo(fileName).isFile();
    if (!isPlain || file.size() > largestFile || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return std::nullopt;
    }
    QTextStream stream(&file);
    const QVector<ProgramStep> steps = read(stream, limit);
    if (file.error() != QFileDevice::NoError) {
        return std::nullopt;
    }
    return steps;
}

} // namespace ProgramFile
