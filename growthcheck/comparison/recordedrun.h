#pragma once

#include "journal/journalline.h"
#include "program/programstep.h"

#include <QDateTime>
#include <QStringList>
#include <QVector>

#include <optional>

namespace GrowthCheck {

/// A line of the journal while a program ran.
struct RecordedEvent
{
    qint64 ms = 0; ///< since Run was pressed, by the clock that nobody can set
    JournalLine line;

    QString value(const char* name) const { return line.value(QLatin1String(name)); }
    /// The channel that the field "cell" names; -1 for none.
    int channel() const;
};

/// A run of a program as the journal tells it.
struct RecordedRun
{
    enum class End {
        Over, ///< the program's own end
        Stopped, ///< by the operator
        BrokenOff, ///< the station ended while it ran
        StillRuns, ///< when the journal was read
    };

    int number = 0; ///< of the journal's runs, counted from 1
    QDateTime startedAt; ///< local time of the station
    QVector<ProgramStep> table; ///< when Run was pressed, up to the last row that is used
    QStringList measured; ///< what the panel showed last before, by channel; empty when nothing tells
    QVector<RecordedEvent> events; ///< from Run on, the last one is that of the end
    End end = End::StillRuns;
};

/// What was found in a journal.
struct RecordedRuns
{
    QString wrong; ///< why it cannot be read; empty when it can
    int count = 0; ///< runs in it
    std::optional<RecordedRun> run; ///< the one that was looked for
};

/// Looks for a run in the journal `fileName` and those that were put aside from it (NAME.4 to NAME.1): the
/// `number`th, or, when that is 0, the last one whose table held `steps`, or the last one at all.
RecordedRuns readRun(const QString& fileName, int number, const QVector<ProgramStep>& steps);

/// The step that the journal's field "fields" says: a line of a program file without its number.
ProgramStep recordedStep(const QString& fields);

} // namespace GrowthCheck
