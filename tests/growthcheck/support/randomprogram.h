#pragma once

#include "growthcheck/rehearsal/assumptions.h"
#include "program/programstep.h"

#include <QRandomGenerator>
#include <QVector>

/// Texts of a row as an operator may leave them in the table.
struct RowTexts
{
    std::array<QString, Channels::count> setPoints;
    std::array<bool, Channels::shutterCount> shutters{};
    QString time;
    QString group;
    QString times;
};

/// A program as nobody would write it, and the chamber it meets, all from a seed.
struct RandomProgram
{
    explicit RandomProgram(quint32 seed);

    QVector<ProgramStep> loaded; ///< as it is when Run is pressed
    QVector<QPair<int, RowTexts>> edits; ///< rows that are changed while it plays
    int editAtStart = 0; ///< at which step's start, counted from 0
    GrowthCheck::Assumptions assumptions;
    int replyTicks = 0; ///< what controllers take to reply
    int phaseTicks = 0; ///< of the polling, when Run is pressed
    bool isPollingFirst = true;

    /// `loaded` with all edits done.
    QVector<ProgramStep> edited() const;

private:
    int below(int bound) { return static_cast<int>(random.bounded(bound)); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename Value> Value oneOf(const QVector<Value>& values)
    {
        return values[below(values.size())];
    }

    ProgramStep row(const QString& group);
    QString setPoint(int channel, double timeSec);
    double time();
    RowTexts hostileRow();
    void addRows();
    void addEdits();

    QRandomGenerator random;
};

/// The step that a row of such texts is.
ProgramStep stepOf(const RowTexts& texts);
