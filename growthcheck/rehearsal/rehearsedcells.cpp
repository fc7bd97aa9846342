#include "growthcheck/rehearsal/rehearsedcells.h"

#include "base/number.h"
#include "temperature/controllermessage.h"

#include <algorithm>
#include <limits>

namespace GrowthCheck {

namespace {

using Kind = Assumptions::Start::Kind;

// What the panel shows of a cell that follows its set point: what the message said, read back.
QString shownAfter(double setPointDegC)
{
    const std::optional<double> value = readNumber(ControllerMessage::valueText(setPointDegC));
    return QString::number(value.value_or(0.0), 'g', 6);
}

} // namespace

RehearsedCells::RehearsedCells(Timeline& target, const Assumptions& assumptions)
    : timeline(target)
    , roundMs(assumptions.roundMs())
{
    for (size_t channel = 0; channel < cells.size(); ++channel) {
        const Assumptions::Start& start = assumptions.starts.at(channel);
        Cell& cell = cells.at(channel);
        cell.kind = start.kind;
        cell.shown = start.kind == Kind::Known ? QString::number(start.degC, 'g', 6)
                                               : ControllerMessage::unknownValue();
    }
}

void RehearsedCells::begin(const StepRamp& ramp, qint64 nowMs)
{
    Cell& cell = cells.at(static_cast<size_t>(ramp.channel));
    if (cell.ramp.cellRunning) {
        planned(cell).end = PlannedRamp::End::Replaced;
        planned(cell).replacedBy = timeline.steps.size() - 1;
        cell.ramp.cellRunning = false;
    }
    PlannedRamp plan;
    plan.channel = ramp.channel;
    plan.target = ramp.targetDegC;
    plan.minutes = ramp.minutes;
    plan.from = fromOf(cell, nowMs);
    plan.plan
        = Ramp::planOf(cell.shown, ramp.targetDegC, ramp.minutes, Channels::list[ramp.channel].riseLimit);
    plan.lastDegC = plan.plan.currentDegC;
    plan.stepEndDegC = plan.plan.currentDegC;
    if (plan.plan.refusal == Ramp::Refusal::None) {
        cell.ramp.start(plan.plan, nowMs);
        cell.target = ramp.targetDegC;
        cell.step = timeline.steps.size() - 1;
        cell.index = timeline.steps.constLast().ramps.size();
    } else {
        plan.end = PlannedRamp::End::Refused;
    }
    timeline.steps.last().ramps.append(plan);
}

PlannedRamp::From RehearsedCells::fromOf(const Cell& cell, qint64 nowMs) const
{
    if (cell.kind == Kind::NotTold) {
        return PlannedRamp::From::NotTold;
    }
    if (cell.kind == Kind::None) {
        return PlannedRamp::From::None;
    }
    // One round until it is sent, another until it is read.
    const bool isLagging = cell.hasSent && nowMs - cell.lastDueMs < 2 * roundMs;
    return isLagging || !cell.isSure ? PlannedRamp::From::Lagging : PlannedRamp::From::Known;
}

QVector<PlannedSetPoint> RehearsedCells::advance(qint64 untilMs, const QVector<int>& channels, int limit)
{
    QVector<PlannedSetPoint> sent;
    for (int channel = 0; channel < Channels::count; ++channel) {
        Cell& cell = cells.at(static_cast<size_t>(channel));
        while (cell.ramp.isDue(untilMs) && sent.size() < limit) {
            sent.append(send(channel, untilMs, channels.contains(channel)));
        }
        if (cell.ramp.cellRunning && cell.step == timeline.steps.size() - 1) {
            planned(cell).outlastsStep = true;
        }
    }
    std::stable_sort(sent.begin(), sent.end(),
        [](const PlannedSetPoint& a, const PlannedSetPoint& b) { return a.dueMs < b.dueMs; });
    return sent;
}

// A set point that falls due so late that its channel's turn need not have come by `untilMs` counts as sent
// when that is the likelier.
PlannedSetPoint RehearsedCells::send(int channel, qint64 untilMs, bool isReplaced)
{
    Cell& cell = cells.at(static_cast<size_t>(channel));
    PlannedRamp& plan = planned(cell);
    PlannedSetPoint setPoint;
    setPoint.channel = channel;
    setPoint.dueMs = cell.ramp.rampNextMs;
    const qint64 leftMs = untilMs - setPoint.dueMs;
    setPoint.isSure = !isReplaced || leftMs >= roundMs;
    setPoint.degC = cell.ramp.step(readNumber(cell.target).value_or(0.0));
    const QString shown = shownAfter(setPoint.degC);
    const bool changesNothing = cell.isSure && cell.shown == shown;
    cell.isSure = setPoint.isSure || changesNothing;
    if (cell.step == timeline.steps.size() - 1) {
        plan.outlastsStep = !setPoint.isSure;
        plan.stepEndDegC = setPoint.isSure ? setPoint.degC : plan.stepEndDegC;
    }
    const auto sinceStartMs = static_cast<double>(setPoint.dueMs - cell.ramp.rampStartMs);
    const double durationMs = plan.plan.durationMin * static_cast<double>(Ramp::stepMs);
    if (!cell.ramp.cellRunning && sinceStartMs > 0.0 && sinceStartMs >= durationMs - 1.0) {
        plan.extraDueMs = setPoint.dueMs;
    }
    plan.end = cell.ramp.cellRunning ? PlannedRamp::End::Runs : PlannedRamp::End::Reached;
    if (!setPoint.isSure && 2 * leftMs < roundMs) {
        plan.end = PlannedRamp::End::Replaced;
        plan.replacedBy = timeline.steps.size(); // the step that begins next
        return setPoint;
    }
    ++plan.sent;
    plan.lastDegC = setPoint.degC;
    cell.lastDueMs = setPoint.dueMs;
    cell.hasSent = true;
    if (cell.kind != Kind::None) {
        cell.kind = Kind::Known;
        cell.shown = shown;
    }
    return setPoint;
}

void RehearsedCells::finish(int limit)
{
    for (int channel = 0; channel < Channels::count; ++channel) {
        Cell& cell = cells.at(static_cast<size_t>(channel));
        if (cell.ramp.cellRunning && cell.ramp.rampRate == 0.0) {
            timeline.endlessAtEnd[channel] = true;
            continue;
        }
        if (!cell.ramp.cellRunning) {
            continue;
        }
        constexpr qint64 ever = std::numeric_limits<qint64>::max();
        const PlannedRamp atEnd = planned(cell);
        for (int sent = 0; cell.ramp.cellRunning && sent < limit; ++sent) {
            timeline.tail.append(send(channel, ever, false));
        }
        const bool standsStill = cell.ramp.rampSetPoint + cell.ramp.rampRate == cell.ramp.rampSetPoint;
        timeline.endlessAtEnd[channel] = cell.ramp.cellRunning && standsStill;
        timeline.isTailCut = timeline.isTailCut || (cell.ramp.cellRunning && !standsStill);
        planned(cell) = atEnd;
    }
    std::stable_sort(timeline.tail.begin(), timeline.tail.end(),
        [](const PlannedSetPoint& a, const PlannedSetPoint& b) { return a.dueMs < b.dueMs; });
}

bool RehearsedCells::isLevelSince(const Cell& cell, qint64 ms)
{
    return cell.ramp.cellRunning && cell.ramp.rampRate == 0.0 && cell.ramp.rampStartMs < ms;
}

QString RehearsedCells::standing(qint64 nowMs, qint64 passStartMs) const
{
    QStringList texts;
    const auto add = [&texts](double number) { texts.append(QString::number(number, 'g', 17)); };
    for (const Cell& cell : cells) {
        texts.append(QString::number(static_cast<int>(cell.kind)));
        texts.append(cell.shown);
        texts.append(QLatin1String(cell.isSure ? "sure" : "perhaps"));
        if (cell.hasSent && nowMs - cell.lastDueMs < 2 * roundMs) {
            add(static_cast<double>(nowMs - cell.lastDueMs));
        }
        if (cell.ramp.cellRunning) {
            add(cell.ramp.rampSetPoint);
            add(cell.ramp.rampRate);
            texts.append(cell.target);
            add(isLevelSince(cell, passStartMs) ? -1.0 : static_cast<double>(cell.ramp.rampNextMs - nowMs));
        }
    }
    return texts.join(QLatin1Char(' '));
}

QVector<PlannedSetPoint> RehearsedCells::leaveOut(qint64 nowMs, qint64 byMs, qint64 passStartMs)
{
    QVector<PlannedSetPoint> levels;
    for (int channel = 0; channel < Channels::count; ++channel) {
        Cell& cell = cells.at(static_cast<size_t>(channel));
        Ramp::Run& ramp = cell.ramp;
        cell.lastDueMs += byMs;
        if (!isLevelSince(cell, passStartMs)) {
            ramp.rampStartMs += byMs;
            ramp.rampNextMs += byMs;
            continue;
        }
        levels.append({channel, ramp.rampNextMs, ramp.rampSetPoint, true});
        const qint64 leftOutMs = nowMs + byMs - ramp.rampNextMs;
        if (leftOutMs > 0) {
            const qint64 minutes = (leftOutMs + Ramp::stepMs - 1) / Ramp::stepMs;
            ramp.rampNextMs += minutes * Ramp::stepMs;
        }
    }
    return levels;
}

} // namespace GrowthCheck
