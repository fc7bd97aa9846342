// The timeline as a table, an event a line.

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/output/csvfields.h"
#include "growthcheck/output/output.h"
#include "shutter/shuttercommand.h"

#include <QStringList>

namespace GrowthCheck {

namespace {

// One event; fields that it has nothing for stay empty.
struct Event
{
    QString name;
    qint64 ms = 0;
    qint64 holds = 0;
    QString step;
    QString pass;
    QString group;
    QString seconds;
    QString open;
    QString cell;
    QString degC;
    QString detail;
};

class CsvTable
{
public:
    CsvTable(const CheckedProgram& checkedProgram, const Sink& target)
        : checked(checkedProgram)
        , sink(target)
    {
    }

    void addStep(const PlannedStep& step)
    {
        Event event;
        event.name = step.plan.kind == StepPlan::Kind::Hold ? QStringLiteral("hold") : QStringLiteral("step");
        event.ms = step.startMs;
        event.holds = step.holdsBefore;
        event.step = QString::number(step.row + 1);
        event.pass = QString::number(step.pass);
        event.group = shortened(step.group);
        event.seconds = QString::number(step.plan.timeSec, 'g', 6);
        event.open = shutterLetters(step.plan.shutters);
        add(event);
        for (const PlannedRamp& ramp : step.ramps) {
            addRamp(step, ramp);
        }
        addSetPoints(step.setPoints, step.holdsBefore);
    }

    void addSetPoints(const QVector<PlannedSetPoint>& setPoints, qint64 holds)
    {
        for (const PlannedSetPoint& setPoint : setPoints) {
            Event event;
            event.name = QStringLiteral("set-point");
            event.ms = setPoint.dueMs;
            event.holds = holds;
            event.cell = QLatin1String(Channels::list[setPoint.channel].name);
            event.degC = QString::number(setPoint.degC, 'f', 1);
            event.detail = setPoint.isSure ? QString() : QStringLiteral("perhaps");
            add(event);
        }
    }

    void addFold(const Fold& fold)
    {
        Event event;
        event.name = QStringLiteral("repeat");
        event.ms = fold.startMs;
        event.holds = checked.timeline.holdsBefore(fold);
        event.pass = QString::number(fold.firstPass);
        event.seconds = secondsText(fold.periodMs);
        event.detail = QStringLiteral("%1 passes like the one before").arg(fold.passes);
        add(event);
    }

    void addEnd()
    {
        Event event;
        event.name
            = checked.timeline.stop == Timeline::Stop::AtEnd ? QStringLiteral("end") : QStringLiteral("cut");
        event.ms = checked.timeline.endMs;
        event.holds = checked.timeline.holds;
        add(event);
        addSetPoints(checked.timeline.tail, checked.timeline.holds);
    }

private:
    void addRamp(const PlannedStep& step, const PlannedRamp& ramp)
    {
        Event event;
        event.name
            = ramp.end == PlannedRamp::End::Refused ? QStringLiteral("refused") : QStringLiteral("ramp");
        event.ms = step.startMs;
        event.holds = step.holdsBefore;
        event.seconds = QString::number(step.plan.timeSec, 'g', 6);
        event.cell = QLatin1String(Channels::list[ramp.channel].name);
        event.degC = QString::number(ramp.plan.targetDegC, 'g', 6);
        event.detail = QStringLiteral("from %1").arg(ramp.plan.currentDegC);
        add(event);
    }

    void add(const Event& event)
    {
        const QDateTime& runAt = checked.assumptions.runAt;
        const QString clock = runAt.isValid()
            ? runAt.addMSecs(event.ms).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"))
            : QString();
        const QStringList fields{inQuotes(checked.program.fileName), secondsText(event.ms),
            QString::number(event.holds), clock, event.name, event.step, event.pass, inQuotes(event.group),
            event.seconds, event.open, event.cell, event.degC, event.detail};
        sink(fields.join(QLatin1Char(',')).toUtf8() + '\n');
    }

    const CheckedProgram& checked;
    const Sink& sink;
};

} // namespace

void writeCsvHead(const Sink& sink)
{
    sink("program,elapsed-s,operator-waits,clock,event,step,pass,group,seconds,open,cell,deg-c,detail\n");
}

void writeCsv(const CheckedProgram& checked, const Sink& sink)
{
    CsvTable table(checked, sink);
    for (int i = 0; i < checked.timeline.steps.size(); ++i) {
        table.addStep(checked.timeline.steps[i]);
        if (const Fold* fold = checked.timeline.foldAfter(i)) {
            table.addFold(*fold);
        }
    }
    table.addEnd();
}

} // namespace GrowthCheck
