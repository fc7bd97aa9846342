// Whatever stands in a program file: the steps that are read from it are the same after they were saved.

#include "fuzz/fuzztarget.h"

#include "program/player.h"
#include "program/programfile.h"

#include <QTextStream>

#include <cmath>

namespace {

constexpr int rows = 200;

QVector<ProgramStep> readFrom(QString text)
{
    QTextStream stream(&text, QIODevice::ReadOnly);
    return ProgramFile::read(stream, rows);
}

QString saved(const QVector<ProgramStep>& steps)
{
    QString text;
    QTextStream stream(&text);
    ProgramFile::write(stream, steps);
    stream.flush();
    return text;
}

// The first saving rounds it.
void roundTime(ProgramStep& step)
{
    step.timeSec = QString::number(step.timeSec, 'g', 6).toDouble();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    QTextStream stream(input.rest());
    stream.setCodec("UTF-8");
    QVector<ProgramStep> steps = ProgramFile::read(stream, rows);
    for (ProgramStep& step : steps) {
        require(std::isfinite(step.timeSec), "a time is finite");
        roundTime(step);
        const StepPlan plan = planOf(step);
        require((plan.kind == StepPlan::Kind::End) == (step.timeSec == 0.0), "a time of 0 is the end");
        require(plan.ramps.size() <= Channels::count, "a channel has one ramp");
    }
    const QVector<ProgramStep> again = readFrom(saved(steps));
    require(again == steps, "a saved program is read as it was");
    return 0;
}
