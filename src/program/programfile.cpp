#include "program/programfile.h"

#include "base/number.h"

#include <QFile>
#include <QFileInfo>
#include <QPair>
#include <QTextStream>
#include <QVarLengthArray>

namespace ProgramFile {

namespace {

static_assert(fieldCount == 20,
    "the programs that laboratories have saved are lines of 20 fields: say how they are read");
static_assert(timesField == fieldCount - 1, "a new column of the table has to be written and read here");

constexpr qint64 largestFile = qint64{16} * 1024 * 1024;

// An empty group would vanish between its two tabs and shift the repeat count.
const QLatin1String noGroup("---NoGroup---");

// Where a field of a line begins, and the place behind it.
using Place = QPair<int, int>;

// The next field from `from` on; an empty place at the end of the line.
Place nextField(const QString& text, int from)
{
    int start = from;
    while (start < text.size() && text[start].isSpace()) {
        ++start;
    }
    int end = start;
    while (end < text.size() && !text[end].isSpace()) {
        ++end;
    }
    return {start, end};
}

bool isEmpty(const Place& place)
{
    return place.first == place.second;
}

// Fills what goes by the line's text. Only the first fields are looked at, as many as a step has: a line may
// hold thousands.
void takeApart(Line& line)
{
    QVarLengthArray<Place, fieldCount> places;
    Place next = nextField(line.text, 0);
    while (places.size() < fieldCount && !isEmpty(next)) {
        places.append(next);
        next = nextField(line.text, next.second);
    }
    line.found = places.size();
    if (line.found < fieldCount) {
        line.kind = line.found == 0 ? Line::Kind::Empty : Line::Kind::TooShort;
        return;
    }
    line.kind = Line::Kind::Step;
    line.fields.clear();
    for (const Place& place : places) {
        line.fields.append(line.text.mid(place.first, place.second - place.first));
    }
    line.hasMore = !isEmpty(next);
    line.step = stepOf(line.fields);
}

// The next line into `line`; one that is too long is read in pieces and never held whole. False at the end of
// the text.
bool readLine(QTextStream& stream, Line& line)
{
    if (!stream.readLineInto(&line.text, longestLine + 1)) {
        return false;
    }
    ++line.number;
    if (line.text.size() <= longestLine) {
        takeApart(line);
        return true;
    }
    line.kind = Line::Kind::TooLong;
    while (line.text.size() > longestLine) {
        stream.readLineInto(&line.text, longestLine + 1);
    }
    line.text.clear();
    return true;
}

void readLines(QTextStream& stream, const std::function<bool(const Line&)>& take)
{
    Line line;
    while (readLine(stream, line) && take(line)) { }
}

// What collects up to `limit` steps in `steps`.
std::function<bool(const Line&)> collecting(QVector<ProgramStep>& steps, int limit)
{
    return [&steps, limit](const Line& line) {
        if (line.kind == Line::Kind::Step) {
            steps.append(line.step);
        }
        return steps.size() < limit;
    };
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

double tableTime(double timeSec)
{
    return readNumber(QString::number(timeSec, 'g', 6)).value_or(0.0);
}

ProgramStep stepOf(const QStringList& fields)
{
    ProgramStep step;
    for (int i = 0; i < Channels::count; ++i) {
        step.setPoints[static_cast<size_t>(i)] = fields[firstSetPointField + i].left(longestText);
    }
    for (int i = 0; i < Channels::shutterCount; ++i) {
        step.shutters[static_cast<size_t>(i)] = fields[firstShutterField + i].toInt() == 1;
    }
    step.timeSec = tableTime(readNumber(fields[timeField]).value_or(0.0));
    step.group = fields[groupField] == noGroup ? QString() : fields[groupField].left(longestText);
    step.times = fields[timesField].toInt();
    return step;
}

std::optional<ProgramStep> stepOf(const QString& line)
{
    Line parts;
    parts.text = line;
    takeApart(parts);
    return parts.kind == Line::Kind::Step ? std::optional<ProgramStep>(parts.step) : std::nullopt;
}

QVector<ProgramStep> read(QTextStream& stream, int limit)
{
    QVector<ProgramStep> steps;
    readLines(stream, collecting(steps, limit));
    return steps;
}

bool readLines(const QString& fileName, const std::function<bool(const Line&)>& take)
{
    QFile file(fileName);
    // Anything but a plain file (a device, a pipe) might never end.
    const bool isPlain = QFileInfo(fileName).isFile();
    if (!isPlain || file.size() > largestFile || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return false;
    }
    QTextStream stream(&file);
    readLines(stream, take);
    return file.error() == QFileDevice::NoError;
}

std::optional<QVector<ProgramStep>> load(const QString& fileName, int limit)
{
    QVector<ProgramStep> steps;
    if (!readLines(fileName, collecting(steps, limit))) {
        return std::nullopt;
    }
    return steps;
}

} // namespace ProgramFile
