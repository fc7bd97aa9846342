// The program table: its rows, its bar of buttons, and editing it row by row.

#include "app/mbemain.h"
#include "base/debugline.h"
#include "base/panelstyle.h"
#include "program/aline.h"
#include "program/livetable.h"
#include "program/steprows.h"

#include <QTimer>

namespace {

constexpr int headerRows = 2;

} // namespace

void MBEMain::setupProgram()
{
    setupProgramDialogs();
    setupProgramTable();
    setupProgramBar();
}

void MBEMain::setupProgramTable()
{
    const LatePolish late;
    clipLine = new aLine;
    Program->setHorizontalSpacing(3);
    Program->setVerticalSpacing(4);
    setupProgramHeader();
    for (int k = 0; k < programRows; ++k) {
        auto* line = new aLine(SA01);
        line->placeInGrid(Program, k + headerRows);
        line->setStep(k + 1);
        connect(line, SIGNAL(copy()), this, SLOT(APCopy()), Qt::UniqueConnection);
        connect(line, SIGNAL(cut()), this, SLOT(APCut()), Qt::UniqueConnection);
        connect(line, SIGNAL(pasteUp()), this, SLOT(APPasteUp()), Qt::UniqueConnection);
        connect(line, SIGNAL(pasteDown()), this, SLOT(APPasteDown()), Qt::UniqueConnection);
        connect(line, SIGNAL(undo()), this, SLOT(APUndo()), Qt::UniqueConnection);
        progLines.append(line);
    }
}

void MBEMain::setupProgramBar()
{
    progRunText = tr("Run");
    progStopText = tr("Stop");
    progResumeText = tr("Resume");
    progPauseText = tr("Pause");
    showState(*ProgRun, false, progRunText);
    showState(*ProgPause, false, progPauseText);
    for (QLabel* figure : {DispTime01, DispTime02, DispTTime01, DispTTime02, DispCount01, DispCount02}) {
        giveRoomForFigures(*figure);
    }
    progTimer = new QTimer;
    progTimer->setTimerType(Qt::PreciseTimer);
    progTimer->setInterval(10);
    connect(ProgRun, SIGNAL(clicked()), this, SLOT(APStart()), Qt::UniqueConnection);
    connect(ProgPause, SIGNAL(clicked()), this, SLOT(APPause()), Qt::UniqueConnection);
    connect(progTimer, SIGNAL(timeout()), this, SLOT(APOneTick()), Qt::UniqueConnection);
    connect(ProgLoad, SIGNAL(clicked()), this, SLOT(APLoad()), Qt::UniqueConnection);
    connect(ProgSave, SIGNAL(clicked()), this, SLOT(APSave()), Qt::UniqueConnection);
    connect(ProgClear, SIGNAL(clicked()), this, SLOT(APClear()), Qt::UniqueConnection);
    connect(ProgCheck, SIGNAL(clicked()), this, SLOT(APCheck()), Qt::UniqueConnection);
}

void MBEMain::setupProgramHeader()
{
    const QString cellStyle = QStringLiteral("background-color: rgb(240, 255, 240);");
    const QString substrateStyle = QStringLiteral("background-color: rgb(255, 240, 240);");
    const QString sequenceStyle = QStringLiteral("background-color: rgb(240, 250, 255);");

    static_assert(ProgramColumns == TimesColumn + 1, "a new column of the table needs its heading here");
    addProgramHeader(tr("Cell Tmp. and Open/Close"), 0, FirstCellColumn, Channels::shutterCount, cellStyle);
    addProgramHeader(tr("Sub. Tmp."), 0, FirstSubstrateColumn, Channels::substrateCount, substrateStyle);
    addProgramHeader(tr("Seq. Ctrl."), 0, TimeColumn, ProgramColumns - TimeColumn, sequenceStyle);

    addProgramHeader(tr("Step"), 1, StepColumn, 1, sequenceStyle);
    for (int n = 0; n < Channels::count; ++n) {
        const QString& style = n < Channels::shutterCount ? cellStyle : substrateStyle;
        addProgramHeader(cellNames[n], 1, FirstCellColumn + n, 1, style);
    }
    addProgramHeader(tr("Time[sec]"), 1, TimeColumn, 1, sequenceStyle);
    addProgramHeader(tr("Group"), 1, GroupColumn, 1, sequenceStyle);
    addProgramHeader(tr("Times"), 1, TimesColumn, 1, sequenceStyle);
}

void MBEMain::addProgramHeader(const QString& text, int row, int column, int columns, const QString& style)
{
    auto* heading = new QLabel(text);
    heading->setFrameShape(QFrame::StyledPanel);
    heading->setAlignment(Qt::AlignHCenter);
    heading->setStyleSheet(style);
    Program->addWidget(heading, row, column, 1, columns);
}

int MBEMain::senderLine() const
{
    return progLines.indexOf(qobject_cast<aLine*>(sender()));
}

void MBEMain::copyLine(const aLine* src, aLine* dst)
{
    dst->setContents(src->contents());
}

void MBEMain::APCopy()
{
    const int k = senderLine();
    if (k < 0) {
        return;
    }
    copyLine(progLines[k], clipLine);
}

// The last row keeps its step, so that afterwards the last two rows hold the same one.
void MBEMain::APCut()
{
    const int k = senderLine();
    if (k < 0) {
        return;
    }
    const HeldUpdates held(*SA01);
    copyLine(progLines[k], clipLine);
    for (int j = k; j < progLines.size() - 1; ++j) {
        copyLine(progLines[j + 1], progLines[j]);
    }
}

void MBEMain::APPasteUp()
{
    const int k = senderLine();
    if (k < 0) {
        return;
    }
    pasteAt(k);
}

void MBEMain::APPasteDown()
{
    const int k = senderLine();
    if (k < 0 || k + 1 >= progLines.size()) {
        return;
    }
    pasteAt(k + 1);
}

// The rows from `row` on move down, the last one is lost.
void MBEMain::pasteAt(int row)
{
    const HeldUpdates held(*SA01);
    for (int j = progLines.size() - 2; j >= row; --j) {
        copyLine(progLines[j], progLines[j + 1]);
    }
    copyLine(clipLine, progLines[row]);
}

void MBEMain::APUndo()
{
    if (senderLine() < 0) {
        return;
    }
    NELVO_DEBUG("program") << "undo";
}

void MBEMain::APClear()
{
    const HeldUpdates held(*SA01);
    for (aLine* line : qAsConst(progLines)) {
        line->setContents(ProgramStep());
    }
}
