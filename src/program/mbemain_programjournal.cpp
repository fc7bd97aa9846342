// What the journal is told of the program: the table at the start, every step, and edits while it plays.

#include "app/mbemain.h"
#include "journal/journal.h"
#include "program/aline.h"
#include "program/programfile.h"

#include <QCryptographicHash>
#include <QTextStream>

namespace {

QString textOf(const QVector<ProgramStep>& steps)
{
    QString text;
    QTextStream stream(&text);
    ProgramFile::write(stream, steps);
    stream.flush();
    return text;
}

// Its line of a program file, without the step's number and the line end.
QString textOf(const ProgramStep& step)
{
    return textOf(QVector<ProgramStep>{step}).section(QLatin1Char('\t'), 1).chopped(1);
}

int usedRows(const QVector<ProgramStep>& steps)
{
    int rows = steps.size();
    while (rows > 0 && steps[rows - 1] == ProgramStep()) {
        --rows;
    }
    return rows;
}

} // namespace

QVector<ProgramStep> MBEMain::tableContents() const
{
    QVector<ProgramStep> steps;
    steps.reserve(progLines.size());
    for (const aLine* line : progLines) {
        steps.append(line->contents());
    }
    return steps;
}

void MBEMain::journalProgram()
{
    const JournalBatch together(*journal);
    journaledTable = tableContents();
    const QByteArray text = textOf(journaledTable).toUtf8();
    const QByteArray digest = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
    const int rows = usedRows(journaledTable);
    journal->write("program", {{"rows", QString::number(rows)}, {"sha256", QString::fromLatin1(digest)}});
    for (int row = 0; row < rows; ++row) {
        journal->write("row", {{"step", QString::number(row + 1)}, {"fields", textOf(journaledTable[row])}});
    }
}

// Rows that are no longer what the journal says of them. They are looked for before each step, which is
// before a row can count, instead of following every key.
void MBEMain::journalEdits()
{
    const QVector<ProgramStep> steps = tableContents();
    for (int row = 0; row < steps.size(); ++row) {
        if (steps[row] != journaledTable[row]) {
            journal->write("edit", {{"step", QString::number(row + 1)}, {"fields", textOf(steps[row])}});
        }
    }
    journaledTable = steps;
}

void MBEMain::journalStep()
{
    const BlockCursor& at = player.progWalk;
    journal->write("step",
        {{"step", QString::number(at.curStep + 1)}, {"group", progLines[at.curStep]->group()},
            {"pass", QString::number(at.groupCount + 1)}, {"times", QString::number(at.groupTimes)},
            {"seconds", journalNumber(player.stepTime)},
            {"late-ms", QString::number(player.stepStartMs - player.stepDueMs)}});
}
