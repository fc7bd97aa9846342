#include "growthcheck/rehearsal/starttemperatures.h"

#include "base/number.h"
#include "growthcheck/check/words.h"
#include "journal/journalline.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace GrowthCheck {

namespace {

constexpr qint64 longestLine = qint64{64} * 1024; // bytes

// What the last line of the kind "minute" says of the channels; empty when there is none.
QStringList lastMeasured(QFile& journal)
{
    QStringList measured;
    while (!journal.atEnd()) {
        const QByteArray text = journal.readLine(longestLine);
        // Few lines are taken apart of the many that a journal has.
        const std::optional<JournalLine> line
            = text.contains("\tminute\t") ? readJournalLine(text) : std::nullopt;
        if (line && line->kind == QLatin1String("minute")) {
            measured = line->value(QStringLiteral("measured")).split(QLatin1Char(' '));
        }
    }
    return measured;
}

} // namespace

QString startFromJournal(const QString& fileName, Assumptions& assumptions)
{
    QFile journal(fileName);
    // Anything but a plain file (a device, a pipe) might never end.
    if (!QFileInfo(fileName).isFile() || !journal.open(QIODevice::ReadOnly)) {
        return Words::tr("it is missing, no plain file, or not to be opened");
    }
    const QStringList measured = lastMeasured(journal);
    if (measured.size() != Channels::count) {
        return Words::tr("no line tells the temperatures of all channels");
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        Assumptions::Start& start = assumptions.starts.at(static_cast<size_t>(channel));
        const std::optional<double> degC = readNumber(measured[channel]);
        start.kind = degC ? Assumptions::Start::Kind::Known : Assumptions::Start::Kind::None;
        start.degC = degC.value_or(0.0);
    }
    return {};
}

} // namespace GrowthCheck
