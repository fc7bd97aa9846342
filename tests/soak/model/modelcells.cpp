#include "soak/model/modelcells.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr int controllersAddress = 1;
constexpr int ticksInCycle = 300;
constexpr double steepestRise = 50.0; // deg C per minute
constexpr qint64 minuteMs = 60000;

const QString unknown = QStringLiteral("----.-");

QString shown(double value)
{
    return QString::number(value, 'g', 6);
}

double orZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

char unit(int number)
{
    return static_cast<char>('1' + number);
}

} // namespace

double modelNumber(const QString& text)
{
    return orZero(text.toDouble());
}

void ModelCells::open()
{
    cells = {};
    for (size_t n = 0; n < cells.size(); ++n) {
        cells[n].isInUse = remembered[n];
    }
    isOn = true;
    state = State::Read;
    tick = 99;
    sentTick = -1;
    lastRampTick = -1;
    polled = 0;
    ramped = 0;
    reply.clear();
    written = 0;
}

void ModelCells::toggleInUse(int number)
{
    at(number).isInUse = !at(number).isInUse;
    for (size_t n = 0; n < cells.size(); ++n) {
        remembered[n] = cells[n].isInUse;
    }
}

void ModelCells::forgetInUse()
{
    remembered.fill(true);
}

void ModelCells::pressRun(int number, qint64 nowMs)
{
    if (at(number).isInUse) {
        startOrStop(number, nowMs);
    }
}

void ModelCells::restart(int number, const QString& target, const QString& minutes, qint64 nowMs)
{
    Cell& cell = at(number);
    cell.target = target;
    cell.minutes = minutes;
    cell.isRamping = false;
    startOrStop(number, nowMs);
}

void ModelCells::startOrStop(int number, qint64 nowMs)
{
    Cell& cell = at(number);
    if (cell.isRamping) {
        cell.isRamping = false;
        return;
    }
    const double from = modelNumber(cell.current);
    const double minutes = modelNumber(cell.minutes);
    if (minutes <= 0.0) {
        return;
    }
    const double rate = (modelNumber(cell.target) - from) / minutes;
    if ((rate > 0.0 && rate > steepestRise) || !std::isfinite(from + rate)) {
        return;
    }
    cell.isRamping = true;
    cell.nextMs = nowMs;
    cell.rate = rate;
    cell.nextSetPoint = from + rate;
}

void ModelCells::poll(qint64 nowMs)
{
    if (!isOn) {
        return;
    }
    switch (state) {
    case State::Read:
        read();
        break;
    case State::Await:
        if (tick == sentTick) {
            reply = "ER";
            state = State::Show;
        }
        break;
    case State::Show:
        show();
        break;
    case State::Ramp:
        stepRamps(nowMs);
        break;
    case State::Next:
        next();
        break;
    }
    ++tick;
    if (tick >= ticksInCycle) {
        tick = 0;
    }
}

void ModelCells::read()
{
    if (!at(polled).isInUse) {
        at(polled).current = unknown;
        state = State::Ramp;
        return;
    }
    if (link.isBusy()) {
        return;
    }
    sendMessage(QByteArray("\x04") + '0' + unit(polled) + "M1\x05");
    state = State::Await;
    sentTick = tick;
}

void ModelCells::show()
{
    at(polled).current = reply == "ER" ? unknown : shown(orZero(reply.mid(3, 7).toDouble()));
    state = State::Ramp;
}

void ModelCells::stepRamps(qint64 nowMs)
{
    const bool anyRamps
        = std::any_of(cells.begin(), cells.end(), [](const Cell& cell) { return cell.isRamping; });
    if (anyRamps && !rampStep(ramped, nowMs) && lastRampTick != tick) {
        return;
    }
    state = State::Next;
    ramped = ramped + 1 == count ? 0 : ramped + 1;
    lastRampTick = tick;
}

// False when the bus is busy.
bool ModelCells::rampStep(int number, qint64 nowMs)
{
    Cell& cell = at(number);
    if (!cell.isRamping) {
        return true;
    }
    if (link.isBusy()) {
        return false;
    }
    if (nowMs <= cell.nextMs) {
        return true;
    }
    const double target = modelNumber(cell.target);
    double setPoint = cell.nextSetPoint;
    if (cell.rate > 0.0) {
        setPoint = std::min(setPoint, target);
    } else if (cell.rate < 0.0) {
        setPoint = std::max(setPoint, target);
    }
    sendSetPoint(number, setPoint);
    cell.setPoint = shown(setPoint);
    if ((cell.rate > 0.0 && setPoint >= target) || (cell.rate < 0.0 && target >= setPoint)) {
        cell.isRamping = false;
        return true;
    }
    cell.nextSetPoint += cell.rate;
    cell.nextMs += minuteMs;
    return true;
}

void ModelCells::next()
{
    ++polled;
    if (polled == count) {
        ++written;
        polled = 0;
    }
    state = State::Read;
}

void ModelCells::take(const QByteArray& line)
{
    if (line.size() != 11 && line != "ER") {
        return;
    }
    reply = line;
    if (state == State::Await) {
        state = State::Show;
    }
}

void ModelCells::sendSetPoint(int number, double degC)
{
    std::array<char, 400> value = {};
    std::snprintf(value.data(), value.size(), "%06.1f", degC);
    QByteArray message
        = QByteArray("\x04") + '0' + unit(number) + "\x02S1" + QByteArray(value.data()) + '\x03';
    char check = 0;
    for (const char byte : qAsConst(message)) {
        check = static_cast<char>(check ^ byte);
    }
    ++setPoints;
    sendMessage(message + check);
}

void ModelCells::sendMessage(const QByteArray& message)
{
    link.selectAddress(controllersAddress);
    link.awaitReply();
    link.setEndOfString(0);
    link.setEndOrIdentify(0);
    link.sendText(message);
}
