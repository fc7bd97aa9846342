#include "journal/journal.h"

#include "base/wallclock.h"
#include "base/wholefile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace {

QString older(const QString& name, int number)
{
    return number == 0 ? name : QStringLiteral("%1.%2").arg(name).arg(number);
}

} // namespace

Journal::Journal(const QString& name, qint64 largestSize, int keptFiles)
    : fileName(QFileInfo(name).absoluteFilePath())
    , largest(largestSize)
    , kept(keptFiles)
    , startMs(WallClock::nowMs())
    , fullAt(largestSize)
{
}

void Journal::copyTo(Journal& other)
{
    copy = &other;
    other.startMs = startMs;
}

std::optional<JournalLine> Journal::lastLine(const QString& passedOver) const
{
    constexpr qint64 longestEnd = qint64{64} * 1024;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    file.seek(qMax<qint64>(0, file.size() - longestEnd));
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (int i = lines.size() - 1; i >= 0; --i) {
        std::optional<JournalLine> line = readJournalLine(lines[i]);
        if (line && line->kind != passedOver) {
            return line;
        }
    }
    return std::nullopt;
}

void Journal::write(const char* kind, const JournalFields& fields)
{
    JournalLine line = lineNow(kind);
    line.fields = fields;
    take(journalText(line));
}

// A line.
void Journal::take(const QByteArray& text)
{
    if (copy != nullptr) {
        copy->take(text);
    }
    if (openBatches > 0) {
        batch += text;
        ++batchLines;
        return;
    }
    append(text, 1);
}

void Journal::beginBatch()
{
    ++openBatches;
    if (copy != nullptr) {
        copy->beginBatch();
    }
}

void Journal::endBatch()
{
    if (copy != nullptr) {
        copy->endBatch();
    }
    --openBatches;
    if (openBatches == 0 && batchLines > 0) {
        append(batch, batchLines);
        batch.clear();
        batchLines = 0;
    }
}

// `text` has `count` lines.
void Journal::append(const QByteArray& text, int count)
{
    if (QFileInfo(fileName).size() + text.size() > fullAt) {
        rotate();
    }
    QByteArray lines = text;
    if (lostLines > 0) {
        JournalLine loss = lineNow("lost-lines");
        loss.fields = {{"count", QString::number(lostLines)}};
        lines.prepend(journalText(loss));
    }
    if (appendToFile(fileName, lines)) {
        lostLines = 0;
    } else {
        lostLines += count;
    }
}

// Each file moves up into the first place that is free; only where none is does the oldest go.
void Journal::rotate()
{
    constexpr qint64 untilTriedAgain = qint64{1024} * 1024;
    int free = 1;
    while (free < kept && QFile::exists(older(fileName, free))) {
        ++free;
    }
    if (free == kept) {
        QFile::remove(older(fileName, kept));
    }
    while (free > 0 && QFile::rename(older(fileName, free - 1), older(fileName, free))) {
        --free;
    }
    fullAt = free == 0 ? largest : QFileInfo(fileName).size() + untilTriedAgain;
}

JournalBatch::JournalBatch(Journal& target)
    : journal(target)
{
    journal.beginBatch();
}

JournalBatch::~JournalBatch()
{
    journal.endBatch();
}

JournalLine Journal::lineNow(const char* kind) const
{
    JournalLine line;
    line.systemMs = WallClock::systemMs();
    line.offsetSec = QDateTime::fromMSecsSinceEpoch(line.systemMs).offsetFromUtc();
    line.elapsedSec = static_cast<double>(WallClock::nowMs() - startMs) / 1000.0;
    line.kind = QLatin1String(kind);
    return line;
}

QString journalNumber(double value)
{
    return QString::number(value, 'g', 6);
}
