#include "program/numberedsteps.h"

#include "support/programtab.h"

ProgramStep numberedStep(int row)
{
    ProgramStep step;
    for (int channel = 0; channel < Channels::count; ++channel) {
        step.setPoints.at(static_cast<size_t>(channel)) = QString::number(100 * row + channel);
    }
    step.shutters.at(static_cast<size_t>(row % Channels::shutterCount)) = true;
    step.timeSec = row + 0.5;
    step.group = QStringLiteral("G%1").arg(row / 3);
    step.times = row + 1;
    return step;
}

QVector<ProgramStep> numberedSteps()
{
    QVector<ProgramStep> steps;
    for (int row = 0; row < ProgramTab::rows; ++row) {
        steps.append(numberedStep(row));
    }
    return steps;
}
