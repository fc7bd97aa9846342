#pragma once

#include "base/channels.h"
#include "simulator/randomsource.h"

#include <array>

namespace Chamber {

/// The heaters of all channels, the substrates behind the source cells. Each follows its set point with a
/// first-order lag. Temperatures are in deg C, times in s of the model on one scale that never runs back.
class ThermalModel
{
public:
    static constexpr double startDegC = 25.0;
    static constexpr double sourceLagSec = 40.0;
    static constexpr double substrateLagSec = 90.0;
    static constexpr double noiseDegC = 0.05; ///< standard deviation of a measurement

    /// The first cell rests at startDegC with that as its set point, each other one `spreadDegC` above the
    /// one before it. `seed` determines the noise.
    explicit ThermalModel(quint64 seed, double spreadDegC = 0.0);

    /// From `nowSec` on the cell heads for `degC`.
    void setSetPoint(int cell, double degC, double nowSec);
    double setPoint(int cell) const;

    /// The cell's true temperature at `nowSec`: exact, however long ago it was last asked for. Before the
    /// last change of the set point it is that of the change.
    double temperature(int cell, double nowSec) const;

    /// A measurement at `nowSec`: the true temperature and noise, which is never more than six noiseDegC.
    double measure(int cell, double nowSec);

private:
    struct Cell
    {
        double fromDegC = startDegC;
        double fromSec = 0.0;
        double setPointDegC = startDegC;
    };
    std::array<Cell, Channels::count> cells;
    RandomSource noise;
};

} // namespace Chamber
