#include "program/blockcursor.h"

namespace {

// More than a real program has; walked in a few milliseconds.
constexpr int walkedSteps = 50000;

} // namespace

BlockCursor BlockCursor::atStart(const ProgramRows& rows)
{
    BlockCursor cursor;
    cursor.groupTimes = rows.times(0);
    return cursor;
}

BlockCursor::Move BlockCursor::advance(const ProgramRows& rows)
{
    ++curStep;
    if (curStep >= rows.count()) {
        return Move::TableEnd;
    }
    if (rows.group(curStep - 1) == rows.group(curStep)) {
        return Move::SameBlock;
    }
    ++groupCount;
    if (groupCount < groupTimes) {
        curStep = groupStart;
        return Move::Repeat;
    }
    groupCount = 0;
    groupStart = curStep;
    groupTimes = rows.times(curStep);
    return Move::NextBlock;
}

int BlockCursor::skipToLastPass()
{
    const int lastPass = qMax(groupTimes - 1, 0);
    const int skipped = lastPass - groupCount;
    groupCount = lastPass;
    return skipped;
}

double totalTimeSec(const ProgramRows& rows)
{
    const int lastRow = rows.count() - 1;
    BlockCursor cursor = BlockCursor::atStart(rows);
    double total = 0.0;
    double pass = 0.0;
    for (int steps = 1; cursor.curStep < lastRow; ++steps) {
        const double timeSec = rows.timeSec(cursor.curStep);
        if (timeSec == 0.0) {
            break;
        }
        if (timeSec > 0.0) {
            total += timeSec;
            pass += timeSec;
        }
        const BlockCursor::Move move = cursor.advance(rows);
        if (move == BlockCursor::Move::SameBlock) {
            continue;
        }
        // A pass has been walked whole, so none of its rows ends the program: the others are like it.
        if (move == BlockCursor::Move::Repeat && steps >= walkedSteps) {
            total += pass * cursor.skipToLastPass();
        }
        pass = 0.0;
    }
    return total;
}
