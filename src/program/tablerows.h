#pragma once

#include "program/aline.h"
#include "program/blockcursor.h"

/// The program table as it stands at the moment a row is asked for.
class TableRows : public ProgramRows
{
public:
    /// `table` must outlive this.
    explicit TableRows(const QList<aLine*>& table)
        : lines(table)
    {
    }

    int count() const override { return lines.size(); }
    double timeSec(int row) const override { return lines[row]->time(); }
    QString group(int row) const override { return lines[row]->group(); }
    int times(int row) const override { return lines[row]->times(); }
    ProgramStep step(int row) const override { return lines[row]->contents(); }

private:
    const QList<aLine*>& lines;
};
