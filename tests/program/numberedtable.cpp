#include "program/numberedtable.h"

namespace NumberedTable {

ProgramStep row(int k)
{
    ProgramStep step;
    for (size_t ch = 0; ch < 9; ++ch) {
        step.setPoints.at(ch) = QString::number(100 * k + static_cast<int>(ch));
    }
    step.shutters.at(static_cast<size_t>(k % 7)) = true;
    step.timeSec = k + 0.5;
    step.group = QStringLiteral("G%1").arg(k / 3);
    step.times = k + 1;
    return step;
}

void fill(ProgramWindow& table)
{
    for (int k = 0; k <= lastRow; ++k) {
        const ProgramStep step = row(k);
        for (int ch = 0; ch < 9; ++ch) {
            table.setPoint(k, ch)->setText(step.setPoints.at(static_cast<size_t>(ch)));
        }
        for (int n = 0; n < 7; ++n) {
            if (step.shutters.at(static_cast<size_t>(n))) {
                table.shutter(k, n)->click();
            }
        }
        table.enter(k, QString::number(step.timeSec), step.group, QString::number(step.times));
    }
}

int difference(ProgramWindow& table, const QVector<ProgramStep>& expected)
{
    for (int k = 0; k <= lastRow; ++k) {
        if (table.row(k) != expected[k] || table.stepLabel(k)->text() != QString::number(k + 1)) {
            return k;
        }
    }
    return -1;
}

QVector<ProgramStep> rows()
{
    QVector<ProgramStep> steps;
    for (int k = 0; k <= lastRow; ++k) {
        steps.append(row(k));
    }
    return steps;
}

} // namespace NumberedTable
