#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

/// What a journal line says besides its kind: a name in ASCII and a value, any text.
struct JournalField
{
    JournalField() = default;
    JournalField(const char* asciiName, const QString& text)
        : name(QLatin1String(asciiName))
        , value(text)
    {
    }
    JournalField(const QString& anyName, const QString& text)
        : name(anyName)
        , value(text)
    {
    }

    QString name;
    QString value;
};
using JournalFields = QVector<JournalField>;

/// One line of the journal, taken apart. docs/journal.md describes the format and every kind.
struct JournalLine
{
    qint64 systemMs = 0; ///< what the system's clock said, ms since the epoch
    int offsetSec = 0; ///< how far local time was ahead of UTC
    double elapsedSec = 0.0; ///< since the program's start, by the clock that nobody can set
    QString kind;
    JournalFields fields;

    /// The value of the field `name`; empty when there is none.
    QString value(const QString& name) const;
};

/// The line as text, UTF-8, ended by LF. Control characters and backslashes in values are escaped, the line
/// and paragraph separators of Unicode, too, so that an event is one line whatever is in it and whoever
/// reads it.
QByteArray journalText(const JournalLine& line);

/// Takes a line of text, with or without its line end, to pieces; nothing for one that is no journal line,
/// such as the rest of one that was cut.
std::optional<JournalLine> readJournalLine(const QByteArray& text);
