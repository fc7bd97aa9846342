#include "simulator/thermalmodel.h"

#include <cmath>

namespace Chamber {

namespace {

constexpr quint64 noiseStream = 1000;

} // namespace

ThermalModel::ThermalModel(quint64 seed, double spreadDegC)
    : noise(seed, noiseStream)
{
    double degC = startDegC;
    for (Cell& cell : cells) {
        cell.fromDegC = degC;
        cell.setPointDegC = degC;
        degC += spreadDegC;
    }
}

void ThermalModel::setSetPoint(int cell, double degC, double nowSec)
{
    Cell& changed = cells.at(static_cast<size_t>(cell));
    changed.fromDegC = temperature(cell, nowSec);
    changed.fromSec = nowSec;
    changed.setPointDegC = degC;
}

double ThermalModel::setPoint(int cell) const
{
    return cells.at(static_cast<size_t>(cell)).setPointDegC;
}

double ThermalModel::temperature(int cell, double nowSec) const
{
    const Cell& asked = cells.at(static_cast<size_t>(cell));
    const double lagSec = cell < Channels::shutterCount ? sourceLagSec : substrateLagSec;
    const double elapsedSec = qMax(0.0, nowSec - asked.fromSec);
    return asked.setPointDegC + (asked.fromDegC - asked.setPointDegC) * std::exp(-elapsedSec / lagSec);
}

double ThermalModel::measure(int cell, double nowSec)
{
    return temperature(cell, nowSec) + noiseDegC * noise.deviation();
}

} // namespace Chamber
