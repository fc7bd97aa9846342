#include "simulator/recording.h"

#include "journal/journal.h"
#include "journal/journalline.h"

#include <QFile>

namespace Chamber {

namespace {

// A run of the station, as far as the journal still has it.
struct Run
{
    Recording recording;
    bool hasStart = false;
    bool hasLoss = false; // lines that had no room
};

// Keeps the last run with bytes.
class Reader
{
public:
    void take(const JournalLine& line)
    {
        if (line.kind == QLatin1String("start")) {
            current = Run();
            current.hasStart = true;
            isWithoutBytes = true;
        } else if (line.kind == QLatin1String("lost-lines")) {
            (isWithoutBytes ? current : found).hasLoss = true;
        } else if (line.kind == QLatin1String("sent") || line.kind == QLatin1String("received")) {
            takeBytes(line);
        }
    }

    bool takeFile(QFile& file)
    {
        if (!file.open(QIODevice::ReadOnly)) {
            return false;
        }
        while (!file.atEnd()) {
            if (const std::optional<JournalLine> line = readJournalLine(file.readLine())) {
                take(*line);
            }
        }
        return true;
    }

    const Run& run() const { return found; }

private:
    void takeBytes(const JournalLine& line)
    {
        if (isWithoutBytes) {
            found = current;
            lastSec = line.elapsedSec;
            isWithoutBytes = false;
        }
        Recording& recording = found.recording;
        const QByteArray bytes = line.value(QStringLiteral("bytes")).toLatin1();
        if (line.kind == QLatin1String("sent")) {
            recording.commands += bytes;
        } else {
            const double delaySec = qMax(0.0, line.elapsedSec - lastSec);
            recording.replies.append({recording.commands.size(), delaySec, bytes});
        }
        lastSec = line.elapsedSec;
    }

    Run found;
    Run current;
    bool isWithoutBytes = true; // the current run, so far
    double lastSec = 0.0;
};

// Why a run cannot be played, said of its journal; empty when it can.
QString obstacle(const Run& run)
{
    if (run.recording.commands.isEmpty()) {
        return QStringLiteral("holds no bytes; the station writes them into NelvoWire.log with "
                              "NELVO_JOURNAL=--wire");
    }
    if (!run.hasStart) {
        return QStringLiteral("no longer has the beginning of its last run: a file that held it is gone");
    }
    if (run.hasLoss) {
        return QStringLiteral("lacks lines of its last run, which had no room (lost-lines)");
    }
    return {};
}

} // namespace

std::optional<Recording> readRecording(const QString& name, QString& error)
{
    Reader reader;
    for (int number = Journal::olderWireFiles; number > 0; --number) {
        QFile older(QStringLiteral("%1.%2").arg(name).arg(number));
        reader.takeFile(older); // there need not be one
    }
    QFile file(name);
    if (!reader.takeFile(file)) {
        error = QStringLiteral("cannot read %1: %2").arg(name, file.errorString());
        return std::nullopt;
    }
    const QString why = obstacle(reader.run());
    if (!why.isEmpty()) {
        error = name + QLatin1Char(' ') + why;
        return std::nullopt;
    }
    return reader.run().recording;
}

} // namespace Chamber
