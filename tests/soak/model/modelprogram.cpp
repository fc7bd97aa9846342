#include "soak/model/modelprogram.h"

#include <QStringList>

namespace {

constexpr int fieldCount = 20;
constexpr int firstShutterField = 10;
constexpr int timeField = 17;
constexpr int groupField = 18;
constexpr int timesField = 19;

const QString noGroup = QStringLiteral("---NoGroup---");

QString shown(double value)
{
    return QString::number(value, 'g', 6);
}

// A row as it arrives where it is copied: what is no number becomes one.
ModelProgram::Row copyOf(const ModelProgram::Row& row)
{
    ModelProgram::Row copy = row;
    copy.time = shown(modelNumber(row.time));
    copy.times = QString::number(row.times.toInt());
    return copy;
}

} // namespace

ModelProgram::ModelProgram(ModelCells& theCells, ModelShutters& theShutters)
    : cells(theCells)
    , shutters(theShutters)
    , rows(rowCount)
{
}

void ModelProgram::open()
{
    clear();
    held = Row();
    running = false;
    paused = false;
}

void ModelProgram::copy(int number)
{
    held = copyOf(rows[number]);
}

void ModelProgram::cut(int number)
{
    copy(number);
    for (int k = number; k < rowCount - 1; ++k) {
        rows[k] = copyOf(rows[k + 1]);
    }
}

void ModelProgram::pasteUp(int number)
{
    insert(number);
}

void ModelProgram::pasteDown(int number)
{
    if (number + 1 < rowCount) {
        insert(number + 1);
    }
}

void ModelProgram::insert(int number)
{
    for (int k = rowCount - 2; k >= number; --k) {
        rows[k + 1] = copyOf(rows[k]);
    }
    rows[number] = copyOf(held);
}

void ModelProgram::clear()
{
    rows.fill(Row());
}

QByteArray ModelProgram::saved() const
{
    QString text;
    for (int k = 0; k < rowCount; ++k) {
        const Row& row = rows[k];
        QStringList fields = {QString::number(k)};
        for (const QString& setPoint : row.setPoints) {
            fields.append(setPoint);
        }
        for (const bool open : row.shutters) {
            fields.append(open ? QStringLiteral("1") : QStringLiteral("0"));
        }
        fields.append(shown(modelNumber(row.time)));
        fields.append(row.group.trimmed().isEmpty() ? noGroup : row.group);
        fields.append(QString::number(row.times.toInt()));
        text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text.toUtf8();
}

void ModelProgram::load(const QByteArray& text)
{
    clear();
    int next = 0;
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QStringList fields = line.simplified().split(QLatin1Char(' '));
        if (fields.size() < fieldCount || next == rowCount) {
            continue;
        }
        Row& row = rows[next];
        ++next;
        for (size_t n = 0; n < row.setPoints.size(); ++n) {
            row.setPoints[n] = fields[1 + static_cast<int>(n)];
        }
        for (size_t n = 0; n < row.shutters.size(); ++n) {
            row.shutters[n] = fields[firstShutterField + static_cast<int>(n)].toInt() == 1;
        }
        row.time = shown(modelNumber(fields[timeField]));
        row.group = fields[groupField] == noGroup ? QString() : fields[groupField];
        row.times = QString::number(fields[timesField].toInt());
    }
}

void ModelProgram::pressRun(qint64 nowMs)
{
    if (running) {
        running = false;
        return;
    }
    running = true;
    paused = false;
    isToStart = true;
    current = 0;
    stepSec = 0.0;
    stepStartMs = nowMs;
    blockTimes = rows[0].times.toInt();
    blockCount = 0;
    blockStart = 0;
}

void ModelProgram::pressPause()
{
    if (running) {
        paused = !paused;
    }
}

void ModelProgram::play(qint64 nowMs)
{
    if (!running || paused) {
        return;
    }
    if (!isToStart && static_cast<double>(nowMs - stepStartMs) > 1000.0 * stepSec) {
        endStep();
    }
    if (isToStart) {
        startStep(nowMs);
    }
}

void ModelProgram::endStep()
{
    isToStart = true;
    ++current;
    if (current >= rowCount || rows[current - 1].group == rows[current].group) {
        return;
    }
    ++blockCount;
    if (blockCount < blockTimes) {
        current = blockStart;
        return;
    }
    blockCount = 0;
    blockStart = current;
    blockTimes = rows[current].times.toInt();
}

void ModelProgram::startStep(qint64 nowMs)
{
    const double sec = current < rowCount ? modelNumber(rows[current].time) : 0.0;
    if (sec == 0.0) {
        running = false;
        return;
    }
    ++steps;
    stepSec = sec;
    paused = sec < 0.0;
    isToStart = false;
    stepStartMs = nowMs;
    const Row& row = rows[current];
    if (sec > 0.0) {
        for (int n = 0; n < ModelCells::count; ++n) {
            const QString& setPoint = row.setPoints[static_cast<size_t>(n)];
            if (modelNumber(setPoint) > 0.0) {
                cells.restart(n, setPoint, shown(sec / 60.0), nowMs);
            }
        }
    }
    shutters.command(row.shutters, nowMs);
}
