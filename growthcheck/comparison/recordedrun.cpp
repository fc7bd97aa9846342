#include "growthcheck/comparison/recordedrun.h"

#include "base/channels.h"
#include "growthcheck/check/words.h"
#include "journal/journal.h"
#include "program/programfile.h"
#include "program/steprows.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>

namespace GrowthCheck {

namespace {

constexpr qint64 longestLine = qint64{1024} * 1024; // bytes; a program's row has no more
constexpr qint64 largestFile = 4 * Journal::largestWireFile;

using Line = JournalLine;

bool isKind(const Line& line, const char* kind)
{
    return line.kind == QLatin1String(kind);
}

QDateTime localTimeOf(const Line& line)
{
    return QDateTime::fromMSecsSinceEpoch(line.systemMs, Qt::OffsetFromUTC, line.offsetSec);
}

bool holdsSame(const QVector<ProgramStep>& table, const QVector<ProgramStep>& steps)
{
    const StepRows one(table);
    const StepRows other(steps);
    for (int row = 0; row < programRows; ++row) {
        if (one.step(row) != other.step(row)) {
            return false;
        }
    }
    return true;
}

// Takes in a journal line by line and keeps the run that is wanted.
class Search
{
public:
    Search(int wantedNumber, const QVector<ProgramStep>& wantedSteps)
        : number(wantedNumber)
        , steps(wantedSteps)
    {
    }

    void take(const Line& line)
    {
        if (isKind(line, "program")) {
            endRun(RecordedRun::End::BrokenOff);
            begin(line);
            return;
        }
        if (isKind(line, "minute")) {
            measured = line.value(QStringLiteral("measured")).split(QLatin1Char(' '));
        }
        if (!current) {
            return;
        }
        if (isKind(line, "start") || isKind(line, "exit")) {
            endRun(RecordedRun::End::BrokenOff);
        } else if (isKind(line, "row")) {
            addRow(line);
        } else {
            addEvent(line);
        }
    }

    RecordedRuns found()
    {
        endRun(RecordedRun::End::StillRuns);
        RecordedRuns runs;
        runs.count = count;
        runs.run = best;
        return runs;
    }

private:
    void begin(const Line& line)
    {
        ++count;
        current.emplace();
        current->number = count;
        current->startedAt = localTimeOf(line);
        current->measured = measured.size() == Channels::count ? measured : QStringList();
        startSec = line.elapsedSec;
    }

    void addRow(const Line& line)
    {
        const int row = line.value(QStringLiteral("step")).toInt() - 1;
        if (row >= 0 && row < programRows) {
            current->table.resize(qMax(current->table.size(), row + 1));
            current->table[row] = recordedStep(line.value(QStringLiteral("fields")));
        }
    }

    void addEvent(const Line& line)
    {
        current->events.append({std::llround(1000.0 * (line.elapsedSec - startSec)), line});
        if (isKind(line, "program-end")) {
            const bool isOver = line.value(QStringLiteral("why")) == QLatin1String("over");
            endRun(isOver ? RecordedRun::End::Over : RecordedRun::End::Stopped);
        }
    }

    void endRun(RecordedRun::End end)
    {
        if (!current) {
            return;
        }
        current->end = end;
        const bool fits = number == 0 ? holdsSame(current->table, steps) : current->number == number;
        const bool isTheBetter = fits || (number == 0 && !hasFitting);
        if (isTheBetter) {
            best = current;
            hasFitting = fits;
        }
        current.reset();
    }

    const int number;
    const QVector<ProgramStep>& steps;
    std::optional<RecordedRun> current;
    std::optional<RecordedRun> best;
    bool hasFitting = false;
    QStringList measured;
    double startSec = 0.0;
    int count = 0;
};

QString searchFile(const QString& fileName, Search& search)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        return Words::tr("it is missing, no plain file, or not to be opened");
    }
    if (file.size() > largestFile) {
        return Words::tr("it is larger than any journal");
    }
    while (!file.atEnd()) {
        const std::optional<Line> line = readJournalLine(file.readLine(longestLine));
        if (line) {
            search.take(*line);
        }
    }
    return {};
}

} // namespace

int RecordedEvent::channel() const
{
    const QString cell = value("cell");
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (cell == QLatin1String(Channels::list[channel].name)) {
            return channel;
        }
    }
    return -1;
}

RecordedRuns readRun(const QString& fileName, int number, const QVector<ProgramStep>& steps)
{
    Search search(number, steps);
    for (int older = Journal::olderWireFiles; older > 0; --older) {
        const QString name = fileName + QLatin1Char('.') + QString::number(older);
        if (QFileInfo(name).isFile()) {
            searchFile(name, search);
        }
    }
    RecordedRuns runs;
    runs.wrong = searchFile(fileName, search);
    if (!runs.wrong.isEmpty()) {
        return runs;
    }
    runs = search.found();
    if (!runs.run) {
        runs.wrong = runs.count == 0 ? Words::tr("it tells of no run of a program")
                                     : Words::tr("it tells of %1 runs").arg(runs.count);
    }
    return runs;
}

ProgramStep recordedStep(const QString& fields)
{
    // A text of the table may hold blanks, so the tabs count here and not any white space.
    const QStringList all = QStringList{QStringLiteral("0")} + fields.split(QLatin1Char('\t'));
    return all.size() == ProgramFile::fieldCount ? ProgramFile::stepOf(all) : ProgramStep();
}

} // namespace GrowthCheck
