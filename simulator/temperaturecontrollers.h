#pragma once

#include "simulator/adapter.h"
#include "simulator/thermalmodel.h"

namespace Chamber {

/// The nine temperature controllers and the device on the bus that they share.
class TemperatureControllers
{
public:
    /// Their GPIB address.
    static constexpr int gpibAddress = 1;

    struct Answer
    {
        int unit = 0; ///< who answers, 1 to 9; 0 for the device when the message names no controller
        QByteArray line; ///< without a line end
        QByteArray event; ///< for the log; empty for a read
    };

    /// For `seed` and `spreadDegC` see ThermalModel.
    explicit TemperatureControllers(quint64 seed, double spreadDegC = 0.0);

    /// Obeys a message at `modelSec`. A read gives the measured value; a set point gives "OK" and the event
    /// "setpoint 01 120.0"; anything wrong changes nothing and gives "ER" and "rejected 01" or, when no
    /// controller is named, "rejected address 1", with the reason.
    Answer take(const BusMessage& message, double modelSec);

    /// What they control. Unit n is cell n - 1.
    const ThermalModel& cells() const { return model; }

private:
    ThermalModel model;
};

} // namespace Chamber
