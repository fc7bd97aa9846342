#include "simulator/rack.h"

#include "simulator/printable.h"

namespace Chamber {

Rack::Rack(quint64 seed, double spreadDegC)
    : controllers(seed, spreadDegC)
{
}

Rack::Outcome Rack::take(const AdapterLine& line, double modelSec)
{
    switch (line.kind) {
    case AdapterLine::Kind::Command:
        return command(line.bytes);
    case AdapterLine::Kind::Message:
        return message(line.bytes, modelSec);
    case AdapterLine::Kind::Overlong:
        break;
    }
    return {"ignored a line of more than " + QByteArray::number(AdapterParser::longestLine) + " bytes", {}, 0,
        false};
}

Rack::Outcome Rack::command(const QByteArray& line)
{
    const Adapter::CommandResult result = adapter.command(line);
    if (!result.understood) {
        return {"ignored " + printable(line), {}, 0, false};
    }
    return {{}, result.answer, 0, false};
}

Rack::Outcome Rack::message(const QByteArray& data, double modelSec)
{
    const BusMessage sent = adapter.message(data);
    if (adapter.address() == ShutterController::gpibAddress) {
        return {shutterController.take(sent), {}, 0, false};
    }
    if (adapter.address() != TemperatureControllers::gpibAddress) {
        return {
            "rejected address " + QByteArray::number(adapter.address()) + " nobody is there", {}, 0, false};
    }
    const TemperatureControllers::Answer answer = controllers.take(sent, modelSec);
    if (!adapter.readsAfterWrite()) {
        // The answer waits on the bus and nobody fetches it; the next message throws it away.
        return {answer.event, {}, answer.unit, false};
    }
    return {answer.event, answer.line, answer.unit, true};
}

} // namespace Chamber
