// Playing the program table against shutters and cells, one bounded thing a tick.

#include "app/mbemain.h"
#include "base/panelstyle.h"
#include "base/wallclock.h"
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
    if (progRunning) {
        progTimer->stop();
        progRunning = false;
        showState(*ProgRun, false, progRunText);
        return;
    }
    showState(*ProgRun, true, progStopText);
    showState(*ProgPause, false, progPauseText);
    stepPhase = StepPhase::ToStart;
    progRunning = true;
    progPaused = false;
    stepStartMs = progStartMs = WallClock::nowMs();
    stepTime = 0.0;
    progWalk = BlockCursor::atStart(TableRows(progLines));
    showGroupCount();
    APCheck();
    progTimer->start();
}

// The clocks run on: a pause counts towards the step's and the program's time.
void MBEMain::APPause()
{
    if (!progRunning) {
        return;
    }
    setPaused(!progPaused);
}

void MBEMain::setPaused(bool paused)
{
    progPaused = paused;
    showState(*ProgPause, paused, paused ? progResumeText : progPauseText);
}

void MBEMain::APOneTick()
{
    const qint64 now = WallClock::nowMs();
    if (progPaused) {
        return;
    }
    if (stepPhase == StepPhase::Playing) {
        const qint64 elapsedMs = now - stepStartMs;
        showFigure(*DispTime01, shownSecondsOf(elapsedMs));
        showFigure(*DispTTime01, shownSecondsOf(now - progStartMs));
        if (static_cast<double>(elapsedMs) > 1000.0 * stepTime) {
            endStep();
        }
    }
    if (stepPhase == StepPhase::ToStart) {
        startStep(now);
    }
}

void MBEMain::endStep()
{
    progLines[progWalk.curStep]->setMark(false);
    stepPhase = StepPhase::ToStart;
    const BlockCursor::Move move = progWalk.advance(TableRows(progLines));
    if (move == BlockCursor::Move::Repeat || move == BlockCursor::Move::NextBlock) {
        showGroupCount();
    }
}

void MBEMain::startStep(qint64 nowMs)
{
    const double timeSec = progWalk.curStep < progLines.size() ? progLines[progWalk.curStep]->time() : 0.0;
    if (timeSec == 0.0) {
        APStart(); // running, so this stops
        return;
    }
    aLine& line = *progLines[progWalk.curStep];
    stepTime = timeSec;
    if (stepTime < 0.0) {
        setPaused(true);
    }
    line.setMark(true);
    if (stepTime > 0.0) {
        startRamps(line);
    }
    commandShutters(line.shutters());

    showFigure(*DispTime01, QStringLiteral("0"));
    showFigure(*DispTime02, shownSeconds(stepTime));
    stepPhase = StepPhase::Playing;
    stepStartMs = nowMs;
}

// Ramps last exactly as long as the step. Whether a channel is marked in use is not asked here.
void MBEMain::startRamps(const aLine& line)
{
    const QString minutes = QString::number(stepTime / 60.0, 'g', 6);
    for (int ch = 0; ch < line.tempCount(); ++ch) {
        if (line.temp(ch) <= 0.0) {
            continue;
        }
        restartRamp(ch, line.tempText(ch), minutes);
    }
}

void MBEMain::APCheck()
{
    showFigure(*DispTTime02, shownSeconds(totalTimeSec(RowsRead(TableRows(progLines)))));
}

void MBEMain::showGroupCount()
{
    if (progWalk.groupTimes < 1) {
        showFigure(*DispCount01, QStringLiteral("----"));
        showFigure(*DispCount02, QStringLiteral("----"));
        return;
    }
    showFigure(*DispCount01, QString::asprintf("%4d", progWalk.groupCount + 1));
    showFigure(*DispCount02, QString::asprintf("%4d", progWalk.groupTimes));
}
