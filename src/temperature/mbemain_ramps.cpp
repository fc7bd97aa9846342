// The cells' ramps: started and stopped on the panel, stepped by the polling, a set point a minute.

#include "app/mbemain.h"
#include "base/number.h"
#include "base/panelstyle.h"
#include "base/wallclock.h"
#include "gpib/gpib.h"
#include "journal/journal.h"

#include <algorithm>

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
    if (ramps[ch].cellRunning) {
        stopCell(ch);
        journalCell("ramp-end", ch, {{"why", QStringLiteral("stopped")}});
        return;
    }
    targetOf(ch); // for its warning
    const Ramp::Plan plan = Ramp::planOf(
        currentLabels[ch]->text(), targetEdits[ch]->text(), durationEdits[ch]->text(), riseRateLimits[ch]);
    const JournalFields asked
        = {{"from", journalNumber(plan.currentDegC)}, {"to", journalNumber(plan.targetDegC)},
            {"minutes", journalNumber(plan.durationMin)}, {"rate", journalNumber(plan.rate)}};
    if (plan.refusal != Ramp::Refusal::None) {
        const bool isTime = plan.refusal == Ramp::Refusal::Duration;
        warn(refusalText(plan.refusal, ch, plan.durationMin));
        stopCell(ch); // a program's step may have refused to replace a ramp by this one
        journalCell("ramp-refused", ch,
            JournalFields{{"why", isTime ? QStringLiteral("time") : QStringLiteral("rise")}} + asked);
        return;
    }
    ramps[ch].start(plan, WallClock::nowMs());
    journalCell("ramp", ch, asked);
    showState(*runButtons[ch], true, stopText);
}

QString MBEMain::refusalText(Ramp::Refusal refusal, int ch, double durationMin) const
{
    if (refusal == Ramp::Refusal::Duration) {
        return tr("Setting time [%1] for the cell [%2:%3] is not correct.")
            .arg(durationMin)
            .arg(ch)
            .arg(cellNames[ch]);
    }
    return tr("The temperature rise up rate should be less than %1 deg-C per min for the cell [%2:%3].")
        .arg(riseRateLimits[ch])
        .arg(ch)
        .arg(cellNames[ch]);
}

// Read anew at every step: the operator may edit the target while the ramp runs.
double MBEMain::targetOf(int ch)
{
    const QString text = targetEdits[ch]->text();
    const std::optional<double> target = readNumber(text);
    if (!target) {
        warn(tr("The target [%1] of the cell [%2:%3] is not a number and counts as 0.")
                 .arg(text, QString::number(ch), cellNames[ch]));
    }
    return target.value_or(0.0);
}

void MBEMain::warn(const QString& text)
{
    constexpr int warningMs = 2000;
    statusBar()->showMessage(text, warningMs);
}

// A ramp that still runs is replaced, whoever started it.
void MBEMain::restartRamp(int ch, const QString& targetDegC, const QString& durationMin)
{
    targetEdits[ch]->setText(targetDegC);
    durationEdits[ch]->setText(durationMin);
    if (ramps[ch].cellRunning) {
        journalCell("ramp-end", ch, {{"why", QStringLiteral("replaced")}});
    }
    ramps[ch].cellRunning = false;
    startStopCell(ch);
}

void MBEMain::stopCell(int ch)
{
    ramps[ch].cellRunning = false;
    showState(*runButtons[ch], false, runText);
}

bool MBEMain::anyCellRunning() const
{
    return std::any_of(ramps.begin(), ramps.end(), [](const Ramp::Run& ramp) { return ramp.cellRunning; });
}

bool MBEMain::rampStep(int ch)
{
    Ramp::Run& ramp = ramps[ch];
    if (!ramp.cellRunning) {
        return true;
    }
    if (gpib->isReplyPending()) {
        return false;
    }
    if (!ramp.isDue(WallClock::nowMs())) {
        return true;
    }
    const double setPoint = ramp.step(targetOf(ch));
    setTMP(static_cast<unsigned char>(ch), setPoint);
    setPointLabels[ch]->setText(QString::number(setPoint, 'g', 6));
    journalCell("set-point", ch, {{"deg-c", journalNumber(setPoint)}, linkField()});
    if (!ramp.cellRunning) {
        stopCell(ch);
        journalCell("ramp-end", ch, {{"why", QStringLiteral("reached")}});
    }
    return true;
}

void MBEMain::showElapsed()
{
    const qint64 now = WallClock::nowMs();
    for (int n = 0; n < Channels::count; ++n) {
        if (ramps[n].cellRunning) {
            const double minutes = static_cast<double>(now - ramps[n].rampStartMs) / 1000.0 / 60.0;
            elapsedLabels[n]->setText(QString::asprintf("%7.2f", minutes));
        }
    }
}
