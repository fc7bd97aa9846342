#include "simulator/temperaturecontrollers.h"

#include "simulator/controllerprotocol.h"

namespace Chamber {

namespace {

QByteArray unitName(int unit)
{
    return unit > 0 ? '0' + QByteArray::number(unit)
                    : "address " + QByteArray::number(TemperatureControllers::gpibAddress);
}

} // namespace

TemperatureControllers::TemperatureControllers(quint64 seed, double spreadDegC)
    : model(seed, spreadDegC)
{
}

TemperatureControllers::Answer TemperatureControllers::take(const BusMessage& message, double modelSec)
{
    using ControllerProtocol::Request;
    const Request request = ControllerProtocol::parse(message.bytes);
    const int cell = request.unit - 1;
    switch (request.kind) {
    case Request::Kind::Read:
        return {request.unit, ControllerProtocol::reading(request.unit, model.measure(cell, modelSec)), {}};
    case Request::Kind::SetPoint:
        model.setSetPoint(cell, request.degC, modelSec);
        return {request.unit, ControllerProtocol::acknowledgement,
            "setpoint " + unitName(request.unit) + ' ' + QByteArray::number(request.degC, 'f', 1)};
    case Request::Kind::Wrong:
        break;
    }
    return {
        request.unit, ControllerProtocol::error, "rejected " + unitName(request.unit) + ' ' + request.reason};
}

} // namespace Chamber
