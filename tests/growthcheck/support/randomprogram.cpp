#include "growthcheck/support/randomprogram.h"

#include "base/number.h"
#include "support/testtext.h"

using namespace TestText;

namespace {

using Kind = GrowthCheck::Assumptions::Start::Kind;

QString degreesText(double degC)
{
    return QString::number(degC, 'g', 6);
}

} // namespace

RandomProgram::RandomProgram(quint32 seed)
    : random(seed)
{
    replyTicks = oneOf<int>({0, 0, 0, 1, 2, 3});
    phaseTicks = below(40);
    isPollingFirst = chance(50);
    assumptions.replyMs = 10 * (replyTicks + 1);
    assumptions.holdMs = 10 * below(300);
    for (GrowthCheck::Assumptions::Start& start : assumptions.starts) {
        start.kind = chance(70) ? Kind::Known : Kind::None;
        start.degC = below(9000) / 10.0;
    }
    addRows();
    addEdits();
}

void RandomProgram::addRows()
{
    const int count = 3 + below(12);
    QString group;
    for (int k = 0; k < count; ++k) {
        if (chance(50)) {
            group = oneOf<QString>({QString(), "A"_s, "B"_s, "超格子"_s});
        }
        loaded.append(row(group));
    }
    // Most programs do not end by a gap.
    for (ProgramStep& step : loaded) {
        if (step.timeSec == 0.0 && chance(90)) {
            step.timeSec = 1.0;
        }
    }
}

ProgramStep RandomProgram::row(const QString& group)
{
    ProgramStep step;
    step.timeSec = time();
    step.group = group;
    step.times = oneOf<int>({1, 1, 1, 2, 3, 5, 0, -1});
    for (bool& shutter : step.shutters) {
        shutter = chance(40);
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (chance(15)) {
            step.setPoints.at(static_cast<size_t>(channel)) = setPoint(channel, step.timeSec);
        }
    }
    return step;
}

// A step that is shorter than the wait for a reply would be overtaken by the next one.
double RandomProgram::time()
{
    switch (below(8)) {
    case 0:
        return replyTicks == 0 ? 0.01 * (1 + below(60)) : 0.5;
    case 1:
        return -1.0;
    case 2:
        return oneOf<double>({60.0, 120.0, 0.0});
    case 3:
        return 0.001 * (500 + below(4000));
    case 4:
        return 20.0 + below(100);
    default:
        return 0.5 * (1 + below(20));
    }
}

QString RandomProgram::setPoint(int channel, double timeSec)
{
    const double start = assumptions.starts.at(static_cast<size_t>(channel)).degC;
    const double reach = 50.0 * qMax(timeSec, 1.0) / 60.0;
    switch (below(6)) {
    case 0:
        return degreesText(start); // level
    case 1:
        return degreesText(1.0 + below(1200)); // often too fast
    case 2:
        return oneOf<QString>({"12,5"_s, "850C"_s, "８５０"_s, "nan"_s, "inf"_s, "-40"_s, "1e400"_s, "--"_s});
    case 3:
        return oneOf<QString>({"+45"_s, "4.5e2"_s, "0x20"_s, "300.0499999"_s, "00250"_s, "1e-9"_s, ".5"_s});
    default:
        return degreesText(qMax(1.0, start + reach * (below(200) - 100) / 100.0));
    }
}

RowTexts RandomProgram::hostileRow()
{
    const double timeSec = time();
    RowTexts texts;
    for (int channel = 0; channel < Channels::count; ++channel) {
        texts.setPoints.at(static_cast<size_t>(channel)) = chance(30) ? setPoint(channel, timeSec) : "0"_s;
    }
    for (bool& shutter : texts.shutters) {
        shutter = chance(50);
    }
    const QString plain = QString::number(timeSec, 'g', 6);
    texts.time = chance(75)
        ? plain
        : oneOf<QString>({"12,5"_s, "2s"_s, "１"_s, "inf"_s, "1e0"_s, "+0.75"_s, "-0.1"_s, "0.7500001"_s});
    texts.group = oneOf<QString>({QString(), "A"_s, "a"_s, "B"_s, "---"_s, "%1"_s});
    texts.times = oneOf<QString>({"1"_s, "2"_s, "２"_s, "2.0"_s, "x"_s, "0"_s, "99999999999"_s});
    return texts;
}

// Rows behind the group that plays then: those of the group count already.
void RandomProgram::addEdits()
{
    if (chance(60)) {
        return;
    }
    int first = 1;
    while (first < loaded.size() && loaded[first].group == loaded[0].group) {
        ++first;
    }
    for (int row = first; row < loaded.size() + 2; ++row) {
        if (chance(50)) {
            edits.append({row, hostileRow()});
        }
    }
}

QVector<ProgramStep> RandomProgram::edited() const
{
    QVector<ProgramStep> steps = loaded;
    for (const auto& edit : edits) {
        if (steps.size() <= edit.first) {
            steps.resize(edit.first + 1);
        }
        steps[edit.first] = stepOf(edit.second);
    }
    return steps;
}

ProgramStep stepOf(const RowTexts& texts)
{
    ProgramStep step;
    step.setPoints = texts.setPoints;
    step.shutters = texts.shutters;
    step.timeSec = readNumber(texts.time).value_or(0.0);
    step.group = texts.group;
    step.times = texts.times.toInt();
    return step;
}
