#include "simulator/recording.h"

#include "journal/journal.h"
#include "journal/journalline.h"

#include <QFile>

namespace Chamber {

namespace {

class Reader
{
public:
    void take(const JournalLine& line)
    {
        const bool isCommand = line.kind == QLatin1String("sent");
        if (line.kind == QLatin1String("start")) {
            isNewRun = true;
        }
        if (!isCommand && line.kind != QLatin1String("received")) {
            return;
        }
        if (isNewRun) {
            found = Recording();
            lastSec = line.elapsedSec;
            isNewRun = false;
        }
        const QByteArray bytes = line.value(QStringLiteral("bytes")).toLatin1();
        if (isCommand) {
            found.commands += bytes;
        } else {
            found.replies.append({found.commands.size(), qMax(0.0, line.elapsedSec - lastSec), bytes});
        }
        lastSec = line.elapsedSec;
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

    const Recording& recording() const { return found; }

private:
    Recording found;
    bool isNewRun = true;
    double lastSec = 0.0;
};

} // namespace

std::optional<Recording> readRecording(const QString& name, QString& error)
{
    Reader reader;
    for (int number = Journal::olderFiles; number > 0; --number) {
        QFile older(QStringLiteral("%1.%2").arg(name).arg(number));
        reader.takeFile(older); // there need not be one
    }
    QFile file(name);
    if (!reader.takeFile(file)) {
        error = QStringLiteral("cannot read %1: %2").arg(name, file.errorString());
        return std::nullopt;
    }
    if (reader.recording().commands.isEmpty()) {
        error = QStringLiteral("%1 holds no bytes; the station writes them with NELVO_JOURNAL=--wire")
                    .arg(name);
        return std::nullopt;
    }
    return reader.recording();
}

} // namespace Chamber
