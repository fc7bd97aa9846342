#include "soak/randomoperator.h"

#include <numeric>

using namespace TestText;

namespace {

constexpr quint64 operatorStream = 77;
constexpr int toldActions = 40;

// What is typed, and what stands in the entry afterwards.
struct Typed
{
    QString keys;
    QString text;
};

const QVector<Typed>& targets()
{
    static const QVector<Typed> all = {{"25"_s, "25"_s}, {"100"_s, "100"_s}, {"180.5"_s, "180.5"_s},
        {"320"_s, "320"_s}, {"650"_s, "650"_s}, {"1150"_s, "1150"_s}, {"0"_s, "0"_s}, {"-40"_s, "-40"_s},
        {"2.5e2"_s, "2.5e2"_s}, {"abc"_s, "abc"_s}, {QString(), QString()}, {"12.5.1"_s, "12.5.1"_s},
        {"1 200"_s, "1200"_s}, {"１５０"_s, "150"_s}, {"99999"_s, "99999"_s}, {"inf"_s, "inf"_s},
        {"nan"_s, "nan"_s}, {"1e400"_s, "1e400"_s}};
    return all;
}

const QVector<Typed>& durations()
{
    static const QVector<Typed> all
        = {{"1"_s, "1"_s}, {"2"_s, "2"_s}, {"5"_s, "5"_s}, {"12"_s, "12"_s}, {"30"_s, "30"_s},
            {"0.5"_s, "0.5"_s}, {"0.01"_s, "0.01"_s}, {"240"_s, "240"_s}, {"0"_s, "0"_s}, {"-3"_s, "-3"_s},
            {"x"_s, "x"_s}, {QString(), QString()}, {"１０．５"_s, "10.5"_s}, {"1e-320"_s, "1e-320"_s}};
    return all;
}

} // namespace

RandomOperator::RandomOperator(quint64 seed, DrivenChamber& theStation, StationModel& theModel)
    : random(seed, operatorStream)
    , station(theStation)
    , model(theModel)
{
}

const QVector<RandomOperator::Action>& RandomOperator::repertoire()
{
    using Operator = RandomOperator;
    static const QVector<Action> all
        = {{80, &Operator::toggleWanted}, {60, &Operator::toggleCommanded}, {40, &Operator::changeShutters},
            {20, &Operator::closeAll}, {25, &Operator::toggleInUse}, {25, &Operator::typeTarget},
            {20, &Operator::typeMinutes}, {70, &Operator::startRamp}, {30, &Operator::pressRun},
            {6, &Operator::toggleControl}, {50, &Operator::runProgram}, {40, &Operator::pauseProgram},
            {8, &Operator::checkProgram}, {1, &Operator::clearTable}, {40, &Operator::editSetPoint},
            {40, &Operator::editShutter}, {40, &Operator::editTime}, {15, &Operator::editGroup},
            {15, &Operator::editTimes}, {10, &Operator::useRowMenu}, {25, &Operator::loadProgram},
            {3, &Operator::loadRubbish}, {6, &Operator::saveProgram}, {20, &Operator::dragChart},
            {20, &Operator::wheelChart}, {5, &Operator::resetChart}, {10, &Operator::pickLine},
            {10, &Operator::switchTab}, {5, &Operator::resizeWindow}, {3, &Operator::removeFiles}};
    return all;
}

void RandomOperator::act()
{
    ++count;
    // Off means that nothing happens: it comes on again with the next thing that is done.
    if (!model.cells.isControlOn()) {
        toggleControl();
        return;
    }
    const QVector<Action>& all = repertoire();
    const int sum = std::accumulate(
        all.begin(), all.end(), 0, [](int weight, const Action& action) { return weight + action.weight; });
    int drawn = below(sum);
    for (const Action& action : all) {
        if (drawn < action.weight) {
            (this->*action.perform)();
            return;
        }
        drawn -= action.weight;
    }
}

qint64 RandomOperator::pauseMs(int longestMs)
{
    return below(longestMs) / DrivenChamber::tickMs * DrivenChamber::tickMs;
}

void RandomOperator::tell(const QString& what)
{
    done.append(QString::number(static_cast<double>(nowMs()) / 1000.0, 'f', 2) + u' ' + what);
    if (done.size() > toldActions) {
        done.removeFirst();
    }
}

void RandomOperator::toggleWanted()
{
    const int number = anyShutter();
    tell("clicks "_s + cell("NS", number));
    station.click(cell("NS", number));
    model.shutters.toggleWanted(number);
}

void RandomOperator::toggleCommanded()
{
    const int number = anyShutter();
    tell("clicks "_s + cell("CS", number));
    model.shutters.toggleCommanded(number, nowMs());
    station.click(cell("CS", number));
}

void RandomOperator::changeShutters()
{
    tell("clicks Change"_s);
    model.shutters.change(nowMs());
    station.click("ChangeShutterB"_s);
}

void RandomOperator::closeAll()
{
    tell("clicks All Close"_s);
    model.shutters.closeAll(nowMs());
    station.click("AllCloseB"_s);
}

void RandomOperator::toggleInUse()
{
    const int number = anyCell();
    tell("clicks "_s + cell("TCActive", number));
    model.cells.toggleInUse(number);
    station.click(cell("TCActive", number));
}

void RandomOperator::typeTarget()
{
    const int number = anyCell();
    const Typed& typed = oneOf(targets());
    tell("types "_s + cell("TDeg", number) + " = "_s + typed.keys);
    model.cells.at(number).target = typed.text;
    station.type(cell("TDeg", number), typed.keys);
}

void RandomOperator::typeMinutes()
{
    const int number = anyCell();
    const Typed& typed = oneOf(durations());
    tell("types "_s + cell("DTime", number) + " = "_s + typed.keys);
    model.cells.at(number).minutes = typed.text;
    station.type(cell("DTime", number), typed.keys);
}

void RandomOperator::startRamp()
{
    const int number = anyCell();
    Typed target = oneOf(targets());
    const Typed& minutes = oneOf(durations());
    if (below(4) == 0) {
        // Close to the steepest rise that is allowed.
        const double rate = oneOf(QVector<double>{49.9, 50.0, 50.1, 53.0});
        target.keys = QString::number(
            modelNumber(model.cells.at(number).current) + rate * modelNumber(minutes.text), 'g', 10);
        target.text = target.keys;
    }
    tell("ramps "_s + cell("RunT", number) + " to "_s + target.keys + " in "_s + minutes.keys);
    model.cells.at(number).target = target.text;
    model.cells.at(number).minutes = minutes.text;
    model.cells.pressRun(number, nowMs());
    station.pressRun(number, target.keys, minutes.keys);
}

void RandomOperator::pressRun()
{
    const int number = anyCell();
    tell("clicks "_s + cell("RunT", number));
    model.cells.pressRun(number, nowMs());
    station.click(cell("RunT", number));
}

void RandomOperator::toggleControl()
{
    tell("turns the control on or off"_s);
    model.cells.toggleControl();
    station.togglePolling();
}
