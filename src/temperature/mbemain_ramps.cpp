// The cells' ramps: started and stopped on the panel, stepped by the polling, a set point a minute.

#include "app/mbemain.h"
#include "base/panelstyle.h"
#include "base/wallclock.h"
#include "gpib/gpib.h"
#include "temperature/ramp.h"

namespace {

constexpr int warningMs = 2000;

} // namespace

void MBEMain::RunStopTControll()
{
    const int n = runButtons.indexOf(qobject_cast<QToolButton*>(sender()));
    if (n < 0 || !cellActive[n]) {
        return;
    }
    startStopCell(n);
}

void MBEMain::startStopCell(int ch)
{
    if (cellRunning[ch]) {
        stopCell(ch);
        return;
    }
    const double current = currentLabels[ch]->text().toDouble();
    const double target = targetEdits[ch]->text().toDouble();
    const double duration = durationEdits[ch]->text().toDouble();
    const Ramp::Plan plan = Ramp::plan(current, target, duration, riseRateLimits[ch]);
    switch (plan.refusal) {
    case Ramp::Refusal::Duration:
        statusBar()->showMessage(tr("Setting time [%1] for the cell [%2:%3] is not correct.")
                                     .arg(duration)
                                     .arg(ch)
                                     .arg(cellNames[ch]),
            warningMs);
        return;
    case Ramp::Refusal::RiseTooFast:
        statusBar()->showMessage(
            tr("The temperature rise up rate should be less than %1 deg-C per min for the cell [%2:%3].")
                .arg(riseRateLimits[ch])
                .arg(ch)
                .arg(cellNames[ch]),
            warningMs);
        return;
    case Ramp::Refusal::None:
        break;
    }
    rampStartMs[ch] = rampNextMs[ch] = WallClock::nowMs();
    rampRate[ch] = plan.rate;
    rampSetPoint[ch] = current + plan.rate;
    cellRunning[ch] = true;
    showState(*runButtons[ch], true, stopText);
}

// A ramp that still runs is replaced, whoever started it.
void MBEMain::restartRamp(int ch, const QString& targetDegC, const QString& durationMin)
{
    targetEdits[ch]->setText(targetDegC);
    durationEdits[ch]->setText(durationMin);
    cellRunning[ch] = false;
    startStopCell(ch);
}

void MBEMain::stopCell(int ch)
{
    cellRunning[ch] = false;
    showState(*runButtons[ch], false, runText);
}

bool MBEMain::anyCellRunning() const
{
    return cellRunning.contains(true);
}

bool MBEMain::rampStep(int ch)
{
    if (!cellRunning[ch]) {
        return true;
    }
    if (gpib->isReplyPending()) {
        return false;
    }
    if (WallClock::nowMs() <= rampNextMs[ch]) {
        return true;
    }
    // Read anew at every step: the operator may edit the target while the ramp runs.
    const double target = targetEdits[ch]->text().toDouble();
    const double rate = rampRate[ch];
    const double setPoint = Ramp::limited(rampSetPoint[ch], target, rate);
    setTMP(static_cast<unsigned char>(ch), setPoint);
    setPointLabels[ch]->setText(QString::number(setPoint, 'g', 6));
    if (Ramp::reaches(setPoint, target, rate)) {
        stopCell(ch);
        return true;
    }
    rampSetPoint[ch] += rate;
    rampNextMs[ch] += Ramp::stepMs;
    return true;
}

void MBEMain::showElapsed()
{
    const qint64 now = WallClock::nowMs();
    for (int n = 0; n < cellRunning.size(); ++n) {
        if (cellRunning[n]) {
            const double minutes = static_cast<double>(now - rampStartMs[n]) / 1000.0 / 60.0;
            elapsedLabels[n]->setText(QString::asprintf("%7.2f", minutes));
        }
    }
}
