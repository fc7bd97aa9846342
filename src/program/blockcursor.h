#pragma once

#include "program/programstep.h"

#include <QVector>

/// What has to be known of a program's table to walk through it and to play it. A row is asked for only when
/// the walk reaches it, so the table may change meanwhile.
class ProgramRows
{
public:
    virtual ~ProgramRows() = default;

    virtual int count() const = 0;
    virtual double timeSec(int row) const = 0;
    virtual QString group(int row) const = 0;
    virtual int times(int row) const = 0;
    /// All that the row says.
    virtual ProgramStep step(int row) const = 0;
};

/// A place in a program on its way through blocks and repeats.
///
/// A block is a run of neighbouring rows with exactly equal group texts, empty ones included. Its repeat
/// count is that of its first row at the moment the walk enters it; below 1 it is walked once.
struct BlockCursor
{
    enum class Move {
        SameBlock, ///< to the next row of the block
        Repeat, ///< back to the block's first row
        NextBlock, ///< to the first row of another block
        TableEnd ///< past the last row; a block that reaches it is not repeated
    };

    int curStep = 0; ///< the row
    int groupTimes = 0; ///< the block's repeat count
    int groupCount = 0; ///< completed passes of the block; below groupTimes or 0, so it cannot overflow
    int groupStart = 0; ///< the block's first row

    /// At the first row of the table, which has one.
    static BlockCursor atStart(const ProgramRows& rows);

    /// Moves on from the finished row `curStep`, which is in the table.
    Move advance(const ProgramRows& rows);

    /// Leaves out the passes of the block that lie between the one that begins and the last one, and says how
    /// many they are. Only at the first row of a block.
    int skipToLastPass();
};

/// How long a program takes in seconds, hold points not counted: the walk without the waiting, up to a row
/// whose time is 0. The table's last row is never counted, although it is played.
///
/// Takes no longer for two thousand million repeats than for some ten thousand: from there on repeats are
/// multiplied, which is the walk's sum but for its rounding.
double totalTimeSec(const ProgramRows& rows);
