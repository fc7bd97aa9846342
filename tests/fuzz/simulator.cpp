// Whatever a client sends to the simulated chamber: how it is cut into pieces makes no difference, and the
// rack answers with lines.

#include "fuzz/fuzztarget.h"

#include "simulator/adapterparser.h"
#include "simulator/faults.h"
#include "simulator/rack.h"

#include <cmath>

using namespace Chamber;

namespace {

bool isSame(const QVector<AdapterLine>& one, const QVector<AdapterLine>& other)
{
    if (one.size() != other.size()) {
        return false;
    }
    for (int i = 0; i < one.size(); ++i) {
        if (one[i].kind != other[i].kind || one[i].bytes != other[i].bytes) {
            return false;
        }
    }
    return true;
}

QVector<AdapterLine> inPieces(const QByteArray& bytes, int size)
{
    AdapterParser parser;
    QVector<AdapterLine> lines;
    for (int at = 0; at < bytes.size(); at += size) {
        lines += parser.feed(bytes.mid(at, size));
    }
    return lines;
}

void checkDelivery(const Delivery& delivery)
{
    for (const Delivery::Piece& piece : delivery.pieces) {
        require(!piece.bytes.isEmpty() && piece.delayMs >= 0, "a piece is sent some time");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const int pieceSize = 1 + input.byte();
    FaultRates rates = {};
    rates.fill(input.byte() / 255.0);
    const QByteArray bytes = input.rest();

    AdapterParser parser;
    const QVector<AdapterLine> lines = parser.feed(bytes);
    require(isSame(inPieces(bytes, pieceSize), lines), "pieces make no difference");

    Rack rack(1);
    Faults faults(rates, static_cast<quint64>(pieceSize));
    double sec = 0.0;
    for (const AdapterLine& line : lines) {
        sec += 1.0;
        const Rack::Outcome outcome = rack.take(line, sec);
        require(outcome.unit >= 0 && outcome.unit <= Channels::count, "a reply is some controller's");
        require(!outcome.reply.contains('\n'), "a reply is a line");
        if (outcome.fromInstrument && !outcome.reply.isEmpty()) {
            checkDelivery(faults.decide(outcome.reply, outcome.unit));
        }
    }
    for (int cell = 0; cell < Channels::count; ++cell) {
        require(
            std::isfinite(rack.temperatures().cells().temperature(cell, sec)), "a cell has a temperature");
    }
    return 0;
}
