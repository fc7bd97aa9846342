#pragma once

#include "simulator/adapter.h"
#include "simulator/adapterparser.h"
#include "simulator/shuttercontroller.h"
#include "simulator/temperaturecontrollers.h"

namespace Chamber {

/// The instrument rack: the adapter and what is wired to it, without a socket and without a clock.
class Rack
{
public:
    /// What came of one line. Both can be empty.
    struct Outcome
    {
        QByteArray event; ///< for the log
        QByteArray reply; ///< to the client, without a line end
        int unit = 0; ///< the controller that replies, 1 to 9; 0 for the adapter or the device as a whole
        bool fromInstrument = false; ///< an instrument's reply, not the adapter's own
    };

    /// For `seed` and `spreadDegC` see ThermalModel.
    explicit Rack(quint64 seed, double spreadDegC = 0.0);

    /// Acts on one line of the client at `modelSec`, a time in s that never runs back.
    Outcome take(const AdapterLine& line, double modelSec);

    /// A new client finds the adapter's settings as they were at first; the instruments go on as they are.
    void resetAdapter() { adapter = Adapter(); }

    const ShutterController& shutters() const { return shutterController; }
    const TemperatureControllers& temperatures() const { return controllers; }

private:
    Outcome command(const QByteArray& line);
    Outcome message(const QByteArray& data, double modelSec);

    Adapter adapter;
    ShutterController shutterController;
    TemperatureControllers controllers;
};

} // namespace Chamber
