// The bytes that the instruments get, a message a line.

#include "growthcheck/check/timetext.h"
#include "growthcheck/output/output.h"
#include "growthcheck/rehearsal/wire.h"

namespace GrowthCheck {

namespace {

constexpr int mostMessages = 100000;

}

void writeWire(const CheckedProgram& checked, const Sink& sink)
{
    sink("# growthcheck wire 1\n# seconds\taddress\tcontroller\tsure\tbytes\n");
    int written = 0;
    const bool isWhole = playMessages(checked.timeline, [&](const WireMessage& message) {
        if (written == mostMessages) {
            return false;
        }
        ++written;
        QByteArray line = secondsText(message.timeMs).toLatin1() + '\t' + QByteArray::number(message.address);
        line += '\t';
        line
            += message.channel < 0 ? QByteArray("-") : QByteArray("0") + Channels::unitDigit(message.channel);
        line += message.isSure ? "\tyes\t" : "\tno\t";
        sink(line + message.bytes.toHex(' ').toUpper() + '\n');
        return true;
    });
    if (!isWhole || checked.timeline.isCut()) {
        sink("# more messages follow that are not listed\n");
    }
    for (int channel = 0; channel < checked.timeline.endlessAtEnd.size(); ++channel) {
        if (checked.timeline.endlessAtEnd[channel]) {
            sink(QByteArray("# controller 0") + Channels::unitDigit(channel)
                + " gets its last set point again every minute\n");
        }
    }
}

} // namespace GrowthCheck
