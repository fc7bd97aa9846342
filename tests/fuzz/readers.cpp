// Whatever stands in a journal: a line that can be read says the same when it is written again, and a
// recording is in order.

#include "fuzz/fuzztarget.h"

#include "journal/journal.h"
#include "journal/journalline.h"
#include "simulator/recording.h"
#include "support/files.h"

#include <QList>

#include <cmath>

namespace {

const QString name = QStringLiteral("journal");

bool isSame(const JournalLine& one, const JournalLine& other)
{
    if (one.systemMs != other.systemMs || one.offsetSec != other.offsetSec || one.kind != other.kind
        || one.fields.size() != other.fields.size()) {
        return false;
    }
    for (int i = 0; i < one.fields.size(); ++i) {
        if (one.fields[i].name != other.fields[i].name || one.fields[i].value != other.fields[i].value) {
            return false;
        }
    }
    return true;
}

void checkLine(const QByteArray& text)
{
    const std::optional<JournalLine> line = readJournalLine(text);
    if (!line) {
        return;
    }
    require(std::isfinite(line->elapsedSec) && !line->kind.isEmpty(), "a journal line has a time and a kind");
    const std::optional<JournalLine> again = readJournalLine(journalText(*line));
    require(again && isSame(*again, *line), "a journal line says the same when it is written again");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPrepared = (prepareFuzzing(), true);
    Q_UNUSED(isPrepared)
    FuzzInput input(data, size);
    const QByteArray text = input.rest();
    for (const QByteArray& line : text.split('\n')) {
        checkLine(line);
    }

    putFile(name, text);
    const Journal journal(name);
    journal.lastLine();
    QString error;
    const std::optional<Chamber::Recording> recording = Chamber::readRecording(name, error);
    require(recording.has_value() == error.isEmpty(), "there is a recording or a reason");
    int before = 0;
    if (recording) {
        for (const Chamber::Recording::Reply& reply : recording->replies) {
            require(
                reply.after >= before && reply.after <= recording->commands.size(), "replies are in order");
            require(reply.delaySec >= 0.0, "a reply comes after its command");
            before = reply.after;
        }
    }
    return 0;
}
