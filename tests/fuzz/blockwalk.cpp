// Any table of groups and repeats: the walk goes the way that a plain walk goes, and its total time is the
// sum of that way.

#include "fuzz/fuzztarget.h"

#include "program/blockcursor.h"

#include <QStringList>

#include <cmath>

namespace {

struct Row
{
    double timeSec;
    QString group;
    int times;
};

class Rows : public ProgramRows
{
public:
    explicit Rows(const QVector<Row>& all)
        : rows(all)
    {
    }
    int count() const override { return rows.size(); }
    double timeSec(int row) const override { return rows[row].timeSec; }
    QString group(int row) const override { return rows[row].group; }
    int times(int row) const override { return rows[row].times; }
    ProgramStep step(int) const override { return {}; } // a walk does not look at it

private:
    const QVector<Row>& rows;
};

QVector<Row> tableOf(FuzzInput& input)
{
    static const QStringList groups
        = {QString(), QStringLiteral("A"), QStringLiteral("B"), QStringLiteral(" ")};
    static const QVector<double> times = {1.0, 0.5, 2.0, -1.0, 0.0, 1e-300, 1e300, 0.1};
    static const QVector<int> repeats = {1, 2, 3, 0, -1, 7, 2147483647, -2147483647 - 1};
    QVector<Row> table;
    do {
        const int drawn = input.byte();
        table.append({times[drawn & 7], groups[(drawn >> 3) & 3], repeats[(drawn >> 5) & 7]});
    } while (!input.isAtEnd() && table.size() < 200);
    return table;
}

// The rules, step by step and one after the other.
struct PlainWalk
{
    explicit PlainWalk(const QVector<Row>& all)
        : rows(all)
        , times(all[0].times)
    {
    }

    void goOn()
    {
        ++row;
        if (row >= rows.size() || rows[row - 1].group == rows[row].group) {
            return;
        }
        ++count;
        if (count >= times) {
            times = rows[row].times;
            start = row;
            count = 0;
        } else {
            row = start;
        }
    }

    const QVector<Row>& rows;
    int row = 0;
    int times;
    int count = 0;
    int start = 0;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int mostSteps = 5000;
    FuzzInput input(data, size);
    const QVector<Row> table = tableOf(input);
    const Rows rows(table);

    PlainWalk plain(table);
    BlockCursor cursor = BlockCursor::atStart(rows);
    double total = 0.0;
    bool isCounting = true;
    int steps = 0;
    for (; steps < mostSteps && plain.row < table.size(); ++steps) {
        require(cursor.curStep == plain.row && cursor.groupCount == plain.count, "the walks agree");
        const double timeSec = table[plain.row].timeSec;
        isCounting = isCounting && timeSec != 0.0 && plain.row < table.size() - 1;
        if (isCounting && timeSec > 0.0) {
            total += timeSec;
        }
        plain.goOn();
        cursor.advance(rows);
    }
    const bool isWhole = steps < mostSteps || !isCounting;
    if (!isWhole && size % 64 != 0) {
        return 0; // adding up such a long way takes as long as a thousand other inputs
    }
    const double counted = totalTimeSec(rows);
    require(counted >= 0.0, "a total time is not negative");
    if (isWhole) {
        require(counted == total, "the total is the sum of the walk");
    }
    return 0;
}
