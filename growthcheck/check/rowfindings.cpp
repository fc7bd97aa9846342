#include "growthcheck/check/rowfindings.h"

#include "base/compatibleform.h"
#include "growthcheck/check/kinds.h"
#include "growthcheck/check/words.h"
#include "growthcheck/layers/elements.h"
#include "program/player.h"
#include "program/steprows.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace GrowthCheck {

namespace {

// A group's name and the first row of the block that has it.
struct NamedBlock
{
    QString name;
    int first;
};

// Neighbouring rows of one group.
struct Block
{
    int first;
    int last;
};

class RowCheck
{
public:
    RowCheck(const QVector<ProgramStep>& steps, qint64 pollingRoundMs)
        : rows(steps)
        , roundMs(pollingRoundMs)
        , used(steps.size())
    {
        while (used > 0 && rows.step(used - 1) == ProgramStep()) {
            --used;
        }
        while (end < rows.count() && rows.timeSec(end) != 0.0) {
            ++end;
        }
    }

    Findings check()
    {
        for (int row = 0; row < end; ++row) {
            checkStep(row);
        }
        for (int first = 0; first < end;) {
            const Block block = blockAt(first);
            checkBlock(block);
            first = block.last + 1;
        }
        checkEnd();
        return findings;
    }

private:
    Block blockAt(int first) const
    {
        int last = first;
        while (last + 1 < rows.count() && rows.group(last + 1) == rows.group(first)) {
            ++last;
        }
        return {first, last};
    }

    void checkStep(int row)
    {
        const StepPlan plan = planOf(rows.step(row));
        if (plan.kind == StepPlan::Kind::Hold) {
            checkHold(row, plan);
        } else if (1000.0 * plan.timeSec < static_cast<double>(roundMs)) {
            tell(Kinds::shortStep, row,
                Words::tr(
                    "The step takes %1 s, less than a polling round (%2 s): its shutters may wait for a "
                    "controller's reply until the next step overtakes them.")
                    .arg(QString::number(plan.timeSec),
                        QString::number(static_cast<double>(roundMs) / 1000.0)));
        }
    }

    void checkHold(int row, const StepPlan& plan)
    {
        QStringList open;
        bool onlyArsenic = true;
        for (int shutter = 0; shutter < plan.shutters.size(); ++shutter) {
            if (plan.shutters[shutter]) {
                open.append(channelName(shutter));
                onlyArsenic = onlyArsenic && roleOf(shutter) == Role::GroupFive;
            }
        }
        if (!open.isEmpty()) {
            tell(onlyArsenic ? Kinds::holdArsenic : Kinds::holdOpen, row,
                Words::tr("The program waits here for the operator with open shutters: %1.")
                    .arg(open.join(QLatin1Char(' '))));
        }
        QStringList left;
        for (const StepRamp& ramp : planAsStep(row).ramps) {
            left.append(channelName(ramp.channel));
        }
        if (!left.isEmpty()) {
            tell(Kinds::holdSetPoints, row,
                Words::tr("A hold sets no set points; the station leaves out those of: %1.")
                    .arg(left.join(QLatin1String(", "))));
        }
    }

    // What the row would set if it had a time.
    StepPlan planAsStep(int row) const
    {
        ProgramStep timed = rows.step(row);
        timed.timeSec = 1.0;
        return planOf(timed);
    }

    void checkBlock(const Block& block)
    {
        const QString group = rows.group(block.first);
        const int times = rows.times(block.first);
        checkTimes(block);
        checkName(block);
        if (end <= block.last && times > 1) {
            tell(Kinds::repeatsCut, block.first,
                Words::tr("The program ends in step %1, within the group: it is played once, not %2 times.")
                    .arg(end + 1)
                    .arg(times));
        } else if (block.last == rows.count() - 1 && end == rows.count()) {
            tell(Kinds::lastRow, block.last,
                Words::tr("Step 200 is played, but the total shown leaves it out, and its group is played "
                          "once whatever its repeat count."));
        } else if (group.isEmpty() && times > 1) {
            tell(Kinds::ungroupedRepeat, block.first,
                Words::tr("Steps without a group are one too: steps %1 to %2 are played %3 times.")
                    .arg(block.first + 1)
                    .arg(block.last + 1)
                    .arg(times));
        }
    }

    void checkTimes(const Block& block)
    {
        const int times = rows.times(block.first);
        if (times < 1) {
            tell(Kinds::timesBelowOne, block.first,
                Words::tr("A repeat count of %1: the group is played once.").arg(times));
        }
        for (int row = block.first + 1; row <= block.last && row < end; ++row) {
            // 1 is what a new row says.
            if (rows.times(row) != times && rows.times(row) != 1) {
                tell(Kinds::timesDiffer, row,
                    Words::tr("The repeat count %1 counts for nothing: that of the group's first step does "
                              "(step %2: %3).")
                        .arg(rows.times(row))
                        .arg(block.first + 1)
                        .arg(times));
            }
        }
    }

    void checkName(const Block& block)
    {
        const QString group = rows.group(block.first);
        if (group.isEmpty()) {
            return;
        }
        const QString plain = plainName(group);
        if (plain.contains(QLatin1String("nogroup"))) {
            tell(Kinds::groupAlike, block.first,
                Words::tr("%1 is a group's name like any other; no group is \"---NoGroup---\".")
                    .arg(quoted(group)));
        }
        QVector<NamedBlock>& before = blocksBefore[plain];
        const auto isSame = [&group](const NamedBlock& other) { return other.name == group; };
        const auto alike = std::find_if_not(before.rbegin(), before.rend(), isSame);
        if (alike != before.rend()) {
            tell(Kinds::groupAlike, block.first,
                Words::tr("The group %1 looks like %2 of step %3 and is another one.")
                    .arg(quoted(group), quoted(alike->name), QString::number(alike->first + 1)));
        }
        if (std::any_of(before.begin(), before.end(), isSame)) {
            tell(Kinds::groupAgain, block.first,
                Words::tr("The group %1 was there before: this is another one, repeated by itself.")
                    .arg(quoted(group)));
        }
        before.append({group, block.first});
    }

    // Names with the same one look alike.
    static QString plainName(const QString& group)
    {
        return group.size() > longestCompatible ? group : compatibleForm(group).toCaseFolded();
    }

    void checkEnd()
    {
        if (end >= used) {
            return;
        }
        const StepPlan plan = planAsStep(end);
        if (!plan.ramps.isEmpty() || plan.shutters.contains(true)) {
            tell(Kinds::endRow, end,
                Words::tr("The time is 0, so the program ends before this step: its shutters and set points "
                          "are not set."));
        }
        if (end + 1 < used) {
            tell(Kinds::rowNotReached, end + 1,
                Words::tr("The program ends at step %1, whose time is 0: what follows up to step %2 is never "
                          "reached.")
                    .arg(end + 1)
                    .arg(used));
        }
    }

    void tell(const Kind& kind, int row, const QString& text)
    {
        Finding finding;
        finding.kind = kind;
        finding.step = row + 1;
        finding.text = text;
        findings.append(finding);
    }

    StepRows rows;
    const qint64 roundMs; // of the polling
    int used; // rows up to the last one that says something
    int end = 0; // the row whose time of 0 ends the program; that behind the table where there is none
    QHash<QString, QVector<NamedBlock>> blocksBefore; // by their plain names
    Findings findings;
};

} // namespace

Findings checkRows(const QVector<ProgramStep>& steps, qint64 roundMs)
{
    return RowCheck(steps, roundMs).check();
}

} // namespace GrowthCheck
