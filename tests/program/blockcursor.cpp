// The walk through blocks and repeats.

#include "program/blockcursor.h"

#include "support/testmain.h"

using namespace TestText;

namespace {

struct Row
{
    double time = 0.0;
    QString group;
    int times = 1;
};
using Table = QVector<Row>;

class TableRows : public ProgramRows
{
public:
    explicit TableRows(const Table& table)
        : rows(table)
    {
    }
    int count() const override { return rows.size(); }
    double timeSec(int row) const override { return rows[row].time; }
    QString group(int row) const override { return rows[row].group; }
    int times(int row) const override { return rows[row].times; }
    ProgramStep step(int row) const override
    {
        ProgramStep step;
        step.timeSec = rows[row].time;
        step.group = rows[row].group;
        step.times = rows[row].times;
        return step;
    }

private:
    const Table& rows;
};

struct Place
{
    int step = 0;
    int times = 0;
    int count = 0;
    int start = 0;
};

bool operator==(const Place& a, const Place& b)
{
    return a.step == b.step && a.times == b.times && a.count == b.count && a.start == b.start;
}

constexpr int patience = 1000;

// The rules of playing, written down a second time as plainly as they go, without the cursor.
QVector<Place> playedByTheRules(const Table& rows)
{
    QVector<Place> places;
    int curStep = 0;
    int groupTimes = rows[0].times;
    int groupCount = 0;
    int groupStart = 0;
    while (places.size() < patience) {
        if (curStep >= rows.size() || rows[curStep].time == 0.0) {
            break;
        }
        places.append({curStep, groupTimes, groupCount, groupStart});
        curStep = curStep + 1;
        if (curStep >= rows.size()) {
            break; // there is no row to compare with: the end of the program
        }
        if (rows[curStep - 1].group == rows[curStep].group) {
            continue;
        }
        groupCount = groupCount + 1;
        if (groupCount >= groupTimes) {
            groupCount = 0;
            groupStart = curStep;
            groupTimes = rows[curStep].times;
        } else {
            curStep = groupStart;
        }
    }
    return places;
}

double totalByTheRules(const Table& rows)
{
    int times = rows[0].times;
    int count = 0;
    int start = 0;
    double total = 0.0;
    int i = 0;
    while (i < rows.size() - 1) {
        const double t = rows[i].time;
        if (t == 0.0) {
            break;
        }
        if (t > 0.0) {
            total = total + t;
        }
        i = i + 1;
        if (rows[i - 1].group == rows[i].group) {
            continue;
        }
        count = count + 1;
        if (count >= times) {
            times = rows[i].times;
            start = i;
            count = 0;
        } else {
            i = start;
        }
    }
    return total;
}

QVector<Place> playedByTheCursor(const Table& table)
{
    const TableRows rows(table);
    QVector<Place> places;
    BlockCursor cursor = BlockCursor::atStart(rows);
    while (places.size() < patience && cursor.curStep < rows.count() && rows.timeSec(cursor.curStep) != 0.0) {
        places.append({cursor.curStep, cursor.groupTimes, cursor.groupCount, cursor.groupStart});
        cursor.advance(rows);
    }
    return places;
}

QVector<Row> allRows()
{
    QVector<Row> rows;
    for (const double time : {0.0, 1.0, -1.0}) {
        for (const char* group : {"", "A", "B"}) {
            for (const int times : {0, 1, 2}) {
                rows.append({time, QLatin1String(group), times});
            }
        }
    }
    return rows;
}

double totalOf(const Table& table)
{
    return totalTimeSec(TableRows(table));
}

} // namespace

class BlockCursorTest : public QObject
{
    Q_OBJECT

private slots:
    void everyShortTableIsWalkedByTheRules()
    {
        const QVector<Row> choices = allRows();
        qint64 tables = 0;
        for (int size = 1; size <= 4; ++size) {
            qint64 combinations = 1;
            for (int i = 0; i < size; ++i) {
                combinations *= choices.size();
            }
            Table table(size);
            for (qint64 number = 0; number < combinations; ++number) {
                qint64 rest = number;
                for (Row& row : table) {
                    row = choices[static_cast<int>(rest % choices.size())];
                    rest /= choices.size();
                }
                ++tables;
                const bool samePlay = playedByTheCursor(table) == playedByTheRules(table);
                const bool sameTotal = totalOf(table) == totalByTheRules(table);
                QVERIFY2(samePlay && sameTotal,
                    qPrintable(
                        "table %1 of %2 rows, play %3, total %4"_s.arg(number).arg(size).arg(samePlay).arg(
                            sameTotal)));
            }
        }
        QCOMPARE(tables, 27 + 27 * 27 + 27 * 27 * 27 + 27 * 27 * 27 * 27);
    }

    void blockAtTheEndOfTheTableIsNotRepeated()
    {
        const Table table{{1.0, "A"_s, 5}, {1.0, "A"_s, 1}};
        QCOMPARE(playedByTheCursor(table).size(), 2);
    }

    void moveSaysWhereItWent()
    {
        const Table table{{1.0, "A"_s, 2}, {1.0, "A"_s, 1}, {1.0, QString(), 1}};
        const TableRows rows(table);
        BlockCursor cursor = BlockCursor::atStart(rows);
        using Move = BlockCursor::Move;
        for (const Move expected :
            {Move::SameBlock, Move::Repeat, Move::SameBlock, Move::NextBlock, Move::TableEnd}) {
            QVERIFY(cursor.advance(rows) == expected);
        }
        QCOMPARE(cursor.curStep, 3);
    }

    void groupsAreComparedExactly()
    {
        const Table table{
            {1.0, "A"_s, 2}, {2.0, "a"_s, 1}, {4.0, "A "_s, 1}, {8.0, QString(), 1}, {0.0, QString(), 1}};
        QCOMPARE(totalOf(table), 1.0 * 2 + 2.0 + 4.0 + 8.0);
    }

    void neighboursWithTheSameGroupAreOneBlock()
    {
        const Table table{{1.0, "A"_s, 2}, {2.0, "A"_s, 7}, {0.0, QString(), 1}};
        QCOMPARE(totalOf(table), 6.0);
    }

    void timesOfLaterRowsHaveNoEffect()
    {
        const Table table{{1.0, "A"_s, 1}, {2.0, "A"_s, 1000}, {0.0, QString(), 1}};
        QCOMPARE(totalOf(table), 3.0);
    }

    void totalLeavesOutTheLastRow()
    {
        Table table(200, {1.0, QString(), 1});
        QCOMPARE(totalOf(table), 199.0);
        QCOMPARE(playedByTheCursor(table).size(), 200);
    }

    void totalEndsAtTheFirstZeroEvenInsideABlock()
    {
        const Table table{{1.0, "A"_s, 2147483647}, {0.0, "A"_s, 1}, {1.0, "A"_s, 1}, {1.0, QString(), 1}};
        QCOMPARE(totalOf(table), 1.0);
    }

    void manyRepeatsAreExactAndQuick_data()
    {
        QTest::addColumn<double>("time");
        QTest::addColumn<bool>("ownGroups");
        QTest::addColumn<double>("total");

        constexpr double most = 2147483647.0;
        QTest::newRow("199 blocks") << 1.0 << true << 199.0 * most;
        QTest::newRow("one block of 199") << 0.5 << false << 199.0 * 0.5 * most;
        QTest::newRow("199 blocks of hold points") << -1.0 << true << 0.0;
        QTest::newRow("one block of hold points") << -1.0 << false << 0.0;
    }

    void manyRepeatsAreExactAndQuick()
    {
        QFETCH(double, time);
        QFETCH(bool, ownGroups);
        QFETCH(double, total);

        Table table(200);
        for (int k = 0; k < 199; ++k) {
            table[k] = {time, ownGroups ? QString::number(k) : "A"_s, 2147483647};
        }
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(totalOf(table), total);
        QVERIFY2(timer.elapsed() < 1000, "the total was walked, not worked out");
    }

    void totalEqualsTheWalkWhereTheWalkIsLong()
    {
        // Times and sums that a double holds exactly, so that rounding cannot hide a pass too many.
        const Table table{{0.5, "A"_s, 30000}, {0.25, "A"_s, 1}, {-1.0, "B"_s, 40000}, {8.0, "B"_s, 1},
            {2.0, "C"_s, 70001}, {1.0, QString(), 1}, {0.0, QString(), 1}};
        QCOMPARE(totalOf(table), totalByTheRules(table));
    }

    void lastRepeatCannotOverflow()
    {
        const Table table{{1.0, "A"_s, 2147483647}, {1.0, QString(), 1}, {0.0, QString(), 1}};
        const TableRows rows(table);
        BlockCursor cursor = BlockCursor::atStart(rows);
        QVERIFY(cursor.advance(rows) == BlockCursor::Move::Repeat);
        QCOMPARE(cursor.skipToLastPass(), 2147483645);
        QVERIFY(cursor.advance(rows) == BlockCursor::Move::NextBlock);
        QCOMPARE(cursor.curStep, 1);
    }
};

NELVO_TEST_MAIN(BlockCursorTest)
#include "blockcursor.moc"
