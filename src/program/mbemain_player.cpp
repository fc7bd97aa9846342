// Playing the program table against shutters and cells, one bounded thing a tick.

#include "app/mbemain.h"
#include "base/panelstyle.h"
#include "base/wallclock.h"
#include "journal/journal.h"
#include "program/aline.h"
#include "program/livetable.h"
#include "program/tablerows.h"

#include <QTimer>

namespace {

// The table's rows, read once: the total time of many repeats asks for each of them many times.
class RowsRead : public ProgramRows
{
public:
    explicit RowsRead(const ProgramRows& table)
    {
        rows.reserve(table.count());
        for (int k = 0; k < table.count(); ++k) {
            rows.append({table.timeSec(k), table.group(k), table.times(k)});
        }
    }

    int count() const override { return rows.size(); }
    double timeSec(int row) const override { return rows[row].timeSec; }
    QString group(int row) const override { return rows[row].group; }
    int times(int row) const override { return rows[row].times; }

private:
    struct Row
    {
        double timeSec;
        QString group;
        int times;
    };
    QVector<Row> rows;
};

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
        if (player.isStepOver(now)) {
            endStep(now);
        }
    }
    if (player.isToStart()) {
        startStep(now);
    }
}

void MBEMain::endStep(qint64 nowMs)
{
    progLines[player.progWalk.curStep]->setMark(false);
    const BlockCursor::Move move = player.endStep(TableRows(progLines), nowMs);
    if (move == BlockCursor::Move::Repeat || move == BlockCursor::Move::NextBlock) {
        showGroupCount();
    }
}

void MBEMain::startStep(qint64 nowMs)
{
    const int row = player.progWalk.curStep;
    const StepPlan plan = row < progLines.size() ? planOf(progLines[row]->contents()) : StepPlan();
    if (plan.kind == StepPlan::Kind::End) {
        stopProgram("over");
        return;
    }
    player.startStep(plan, nowMs);
    journalEdits();
    journalStep();
    if (player.progPaused) {
        showPaused();
        journal->write("hold");
    }
    progLines[row]->setMark(true);
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
    showFigure(*DispTTime02, shownSeconds(totalTimeSec(RowsRead(TableRows(progLines)))));
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
