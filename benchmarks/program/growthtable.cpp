#include "benchmarks/program/growthtable.h"

#include "support/programtab.h"

QVector<ProgramStep> fullProgram(bool allShutters)
{
    QVector<ProgramStep> steps(ProgramTab::rows);
    for (int k = 0; k < steps.size(); ++k) {
        ProgramStep& step = steps[k];
        for (size_t ch = 0; ch < step.setPoints.size(); ++ch) {
            step.setPoints.at(ch) = QString::number(300 + 10 * static_cast<int>(ch) + k);
        }
        for (int n = 0; n < Channels::shutterCount; ++n) {
            step.shutters.at(static_cast<size_t>(n))
                = allShutters ? k % 2 == 0 : n == 3 || n == k % Channels::shutterCount;
        }
        step.timeSec = k + 1;
        step.group = QStringLiteral("G%1").arg(k);
        step.times = k + 1;
    }
    return steps;
}
