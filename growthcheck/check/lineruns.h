#pragma once

#include <QString>
#include <QVector>

namespace GrowthCheck {

/// Lines of a file that share a fate, told as ranges: "3, 7 to 9". However many there are, only some ranges
/// are kept; the others are counted.
class LineRuns
{
public:
    /// A line behind those that were added. `isNext` says that only lines that do not count lie between it
    /// and the one before.
    void add(int line, bool isNext);

    bool isEmpty() const { return runs.isEmpty(); }
    int first() const { return runs.constFirst().first; }
    QString text() const;

private:
    struct Run
    {
        int first;
        int last;
    };
    QVector<Run> runs;
    int further = 0; // lines behind the ranges that are kept
};

} // namespace GrowthCheck
