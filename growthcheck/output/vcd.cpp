// A value change dump, as waveform viewers read it: the seven shutters, the nine set points, step and pass.

#include "growthcheck/output/output.h"
#include "growthcheck/rehearsal/playedsteps.h"

namespace GrowthCheck {

namespace {

constexpr int mostSteps = 50000;

constexpr char stepCode = '!';
constexpr char passCode = '"';

char shutterCode(int shutter)
{
    return static_cast<char>('A' + shutter);
}

char setPointCode(int channel)
{
    return static_cast<char>('a' + channel);
}

QByteArray wordOf(int channel)
{
    return QByteArray(Channels::list[channel].name).replace(' ', '_');
}

QByteArray head()
{
    QByteArray text = "$timescale 1 ms $end\n$scope module growth $end\n";
    text += QByteArray("$var integer 32 ") + stepCode + " step $end\n";
    text += QByteArray("$var integer 32 ") + passCode + " pass $end\n";
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        text += QByteArray("$var wire 1 ") + shutterCode(shutter) + " shutter_" + wordOf(shutter) + " $end\n";
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        text += QByteArray("$var real 64 ") + setPointCode(channel) + " setpoint_" + wordOf(channel)
            + " $end\n";
    }
    return text + "$upscope $end\n$enddefinitions $end\n";
}

QByteArray integer(int value, char code)
{
    return 'b' + QByteArray::number(value, 2) + ' ' + code + '\n';
}

// Writes changes at rising times.
class Dump
{
public:
    explicit Dump(const Sink& target)
        : sink(target)
    {
    }

    void begin(const PlayedStep& step)
    {
        QByteArray text = at(step.startMs);
        text += integer(step.planned.row + 1, stepCode) + integer(step.pass, passCode);
        for (int shutter = 0; shutter < step.planned.plan.shutters.size(); ++shutter) {
            text += (step.planned.plan.shutters[shutter] ? '1' : '0');
            text += shutterCode(shutter);
            text += '\n';
        }
        sink(text);
    }

    void set(const PlannedSetPoint& setPoint)
    {
        sink(at(setPoint.dueMs) + 'r' + QByteArray::number(setPoint.degC, 'f', 1) + ' '
            + setPointCode(setPoint.channel) + '\n');
    }

    void end(qint64 ms) { sink(at(ms)); }

private:
    QByteArray at(qint64 ms)
    {
        if (ms == lastMs) {
            return {};
        }
        lastMs = ms;
        return '#' + QByteArray::number(ms) + '\n';
    }

    const Sink& sink;
    qint64 lastMs = -1;
};

} // namespace

void writeVcd(const CheckedProgram& checked, const Sink& sink)
{
    sink(head());
    Dump dump(sink);
    int steps = 0;
    const bool isWhole = playSteps(checked.timeline, [&](const PlayedStep& step) {
        if (steps == mostSteps) {
            return false;
        }
        ++steps;
        dump.begin(step);
        for (const PlannedSetPoint& setPoint : step.setPoints) {
            dump.set(setPoint);
        }
        return true;
    });
    if (isWhole && checked.timeline.stop == Timeline::Stop::AtEnd) {
        dump.end(checked.timeline.endMs);
        for (const PlannedSetPoint& setPoint : checked.timeline.tail) {
            dump.set(setPoint);
        }
    }
    if (!isWhole || checked.timeline.isCut()) {
        sink("$comment more changes follow that are not listed $end\n");
    }
}

} // namespace GrowthCheck
