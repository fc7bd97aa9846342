// Playing the program table against shutters and cells, one bounded thing a tick.

#include "app/mbemain.h"
#include "base/panelstyle.h"
#include "base/wallclock.h"
#include "journal/journal.h"
#include "program/aline.h"
#include "program/livetable.h"
#include "program/steprows.h"
#include "program/tablerows.h"

#include <QTimer>

namespace {

QString shownSeconds(double seconds)
{
    return QString::asprintf("%6.1f", seconds);
}

QString shownSecondsOf(qint64 ms)
{
    return shownSeconds(static_cast<double>(ms) / 1000.0);
}

} // namespace

void MBEMain::APStart()
{
    if (player.progRunning) {
        stopProgram("stopped");
        return;
    }
    showState(*ProgRun, true, progStopText);
    showState(*ProgPause, false, progPauseText);
    player.start(TableRows(progLines), WallClock::nowMs());
    showGroupCount();
    APCheck();
    journalProgram();
    progTimer->start();
}

// The running row's mark, the shutters and the ramps stay as they are.
void MBEMain::stopProgram(const char* why)
{
    progTimer->stop();
    player.stop();
    showState(*ProgRun, false, progRunText);
    journalEdits();
    journal->write("program-end", {{"why", QLatin1String(why)}});
}

// The clocks run on: a pause counts towards the step's and the program's time.
void MBEMain::APPause()
{
    if (!player.progRunning) {
        return;
    }
    player.progPaused = !player.progPaused;
    showPaused();
    journal->write(player.progPaused ? "pause" : "resume");
}

void MBEMain::showPaused()
{
    showState(*ProgPause, player.progPaused, player.progPaused ? progResumeText : progPauseText);
}

void MBEMain::APOneTick()
{
    const qint64 now = WallClock::nowMs();
    if (player.progPaused) {
        return;
    }
    if (!player.isToStart()) {
        showFigure(*DispTime01, shownSecondsOf(now - player.stepStartMs));
        showFigure(*DispTTime01, shownSecondsOf(now - player.progStartMs));
    }
    const int row = player.progWalk.curStep;
    const PlayerTick tick = player.tick(TableRows(progLines), now);
    if (tick.ended) {
        showStepEnded(row, *tick.ended);
    }
    if (tick.begun) {
        beginStep(*tick.begun);
    }
    if (tick.isOver) {
        stopProgram("over");
    }
}

void MBEMain::showStepEnded(int row, BlockCursor::Move move)
{
    progLines[row]->setMark(false);
    if (move == BlockCursor::Move::Repeat || move == BlockCursor::Move::NextBlock) {
        showGroupCount();
    }
}

void MBEMain::beginStep(const StepPlan& plan)
{
    const JournalBatch together(*journal); // the ramps and the shutters come first
    journalEdits();
    journalStep();
    if (player.progPaused) {
        showPaused();
        journal->write("hold");
    }
    progLines[player.progWalk.curStep]->setMark(true);
    // Whether a channel is marked in use is not asked here.
    for (const StepRamp& ramp : plan.ramps) {
        restartRamp(ramp.channel, ramp.targetDegC, ramp.minutes);
    }
    commandShutters(plan.shutters);

    showFigure(*DispTime01, QStringLiteral("0"));
    showFigure(*DispTime02, shownSeconds(player.stepTime));
}

void MBEMain::APCheck()
{
    showFigure(*DispTTime02, shownSeconds(totalTimeSec(StepRows(tableContents()))));
}

void MBEMain::showGroupCount()
{
    if (player.progWalk.groupTimes < 1) {
        showFigure(*DispCount01, QStringLiteral("----"));
        showFigure(*DispCount02, QStringLiteral("----"));
        return;
    }
    showFigure(*DispCount01, QString::asprintf("%4d", player.progWalk.groupCount + 1));
    showFigure(*DispCount02, QString::asprintf("%4d", player.progWalk.groupTimes));
}
