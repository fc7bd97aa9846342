#pragma once

#include "journal/journalline.h"

#include <QString>

/// What happened, a line an event, in a file that outlives the program: appended and flushed a line at a
/// time, so that nothing is lost but what a crash cut off.
///
/// At 8 MiB, unless another size is said, the file is put aside as NAME.1, the one before it as NAME.2, and
/// so on; four of them are kept. Where a file cannot be moved, as when somebody has it open, none is given up
/// and the last is written on. A full disk or a closed folder costs the lines and nothing else; how many were
/// lost is told as soon as there is room.
class Journal
{
public:
    static constexpr qint64 largestFile = qint64{8} * 1024 * 1024;
    static constexpr int olderFiles = 4;
    /// The same for a journal with every byte of the link: thirty hours of the busiest one, a growth and
    /// more.
    static constexpr qint64 largestWireFile = qint64{64} * 1024 * 1024;
    static constexpr int olderWireFiles = 7;

    /// Writes to the file `name`, which need not be there yet; relative names count from the working
    /// directory. At `largestSize` bytes it is put aside, and `keptFiles` older ones are kept.
    explicit Journal(const QString& name = QStringLiteral("NelvoJournal.log"),
        qint64 largestSize = largestFile, int keptFiles = olderFiles);

    /// Has `other` told every line from here on, too; it must outlive this one, and its seconds count from
    /// this one's start.
    void copyTo(Journal& other);

    /// The last whole line of the file as it stands, lines of the kind `passedOver` not counted; none when
    /// there is no file or no line.
    std::optional<JournalLine> lastLine(const QString& passedOver = QString()) const;

    void write(const char* kind, const JournalFields& fields = {});

private:
    friend class JournalBatch;

    void take(const QByteArray& text);
    void beginBatch();
    void endBatch();
    void append(const QByteArray& text, int count);
    void rotate();
    JournalLine lineNow(const char* kind) const;

    const QString fileName;
    const qint64 largest;
    const int kept;
    qint64 startMs; // the program's start by WallClock
    Journal* copy = nullptr;
    qint64 lostLines = 0;
    qint64 fullAt;
    int openBatches = 0;
    QByteArray batch;
    int batchLines = 0;
};

/// Has all lines that are written during its life appended at once, when it ends: what is commanded meanwhile
/// does not wait for a file to be opened and closed for each of them.
class JournalBatch
{
public:
    explicit JournalBatch(Journal& target);
    ~JournalBatch();
    JournalBatch(const JournalBatch&) = delete;
    JournalBatch& operator=(const JournalBatch&) = delete;

private:
    Journal& journal;
};

/// A number as journals and panels show it: up to six significant digits.
QString journalNumber(double value);
