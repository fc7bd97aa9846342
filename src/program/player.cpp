#include "program/player.h"

#include "base/number.h"

StepPlan planOf(const ProgramStep& step)
{
    StepPlan plan;
    plan.timeSec = step.timeSec;
    if (step.timeSec == 0.0) {
        return plan;
    }
    plan.shutters.reserve(Channels::shutterCount);
    for (const bool open : step.shutters) {
        plan.shutters.append(open);
    }
    if (step.timeSec < 0.0) {
        plan.kind = StepPlan::Kind::Hold;
        return plan;
    }
    plan.kind = StepPlan::Kind::Step;
    const QString minutes = QString::number(step.timeSec / 60.0, 'g', 6);
    for (int channel = 0; channel < Channels::count; ++channel) {
        const QString& setPoint = step.setPoints[static_cast<size_t>(channel)];
        if (readNumber(setPoint).value_or(0.0) > 0.0) {
            plan.ramps.append({channel, setPoint, minutes});
        }
    }
    return plan;
}

void Player::start(const ProgramRows& rows, qint64 nowMs)
{
    progRunning = true;
    progPaused = false;
    progStartMs = nowMs;
    stepStartMs = nowMs;
    stepDueMs = nowMs;
    stepTime = 0.0;
    stepPhase = Phase::ToStart;
    progWalk = BlockCursor::atStart(rows);
}

bool Player::isStepOver(qint64 nowMs) const
{
    return stepPhase == Phase::Playing && static_cast<double>(nowMs - stepStartMs) > 1000.0 * stepTime;
}

PlayerTick Player::tick(const ProgramRows& rows, qint64 nowMs)
{
    PlayerTick done;
    if (isStepOver(nowMs)) {
        done.ended = endStep(rows, nowMs);
    }
    if (!isToStart()) {
        return done;
    }
    const int row = progWalk.curStep;
    const StepPlan plan = row < rows.count() ? planOf(rows.step(row)) : StepPlan();
    done.isOver = plan.kind == StepPlan::Kind::End;
    if (!done.isOver) {
        startStep(plan, nowMs);
        done.begun = plan;
    }
    return done;
}

BlockCursor::Move Player::endStep(const ProgramRows& rows, qint64 nowMs)
{
    // Nobody can say when a hold should have ended.
    const bool wasHold = stepTime < 0.0;
    stepDueMs = wasHold ? nowMs : stepStartMs + static_cast<qint64>(1000.0 * stepTime);
    stepPhase = Phase::ToStart;
    return progWalk.advance(rows);
}

void Player::startStep(const StepPlan& plan, qint64 nowMs)
{
    stepTime = plan.timeSec;
    progPaused = plan.kind == StepPlan::Kind::Hold;
    stepPhase = Phase::Playing;
    stepStartMs = nowMs;
}
