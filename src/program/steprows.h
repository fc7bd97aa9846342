#pragma once

#include "program/blockcursor.h"

#include <QVector>

/// The rows of the program table, used or not.
constexpr int programRows = 200;

/// A program's steps, seen as the table that holds them: the rows behind the last one are unused.
class StepRows : public ProgramRows
{
public:
    explicit StepRows(const QVector<ProgramStep>& programSteps)
        : steps(programSteps)
    {
        steps.resize(programRows);
    }

    int count() const override { return steps.size(); }
    double timeSec(int row) const override { return steps[row].timeSec; }
    QString group(int row) const override { return steps[row].group; }
    int times(int row) const override { return steps[row].times; }
    ProgramStep step(int row) const override { return steps[row]; }

private:
    QVector<ProgramStep> steps;
};
