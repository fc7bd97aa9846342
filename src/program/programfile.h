#pragma once

#include "program/programstep.h"

#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

class QTextStream;

/// The text form of a growth program: one line a step, 20 fields separated by tabs. docs/program-file.md
/// describes it.
namespace ProgramFile {

/// Fields of a line, counted from 0; in front stands the step's number.
constexpr int firstSetPointField = FirstCellColumn;
constexpr int firstShutterField = TimeColumn;
constexpr int timeField = TimeColumn + Channels::shutterCount;
constexpr int groupField = GroupColumn + Channels::shutterCount;
constexpr int timesField = TimesColumn + Channels::shutterCount;
constexpr int fieldCount = ProgramColumns + Channels::shutterCount; ///< how many they are

/// The longest line that is read and the longest text that a cell of the table takes, in characters.
constexpr int longestLine = 64 * 1024;
constexpr int longestText = 32767;

/// A line of a file, taken to pieces.
struct Line
{
    enum class Kind {
        Step, ///< says a step
        Empty,
        TooShort, ///< has fewer than 20 fields, and is skipped
        TooLong, ///< has more than `longestLine` characters, and is skipped unread
    };

    int number = 0; ///< counted from 1
    Kind kind = Kind::Empty;
    QString text; ///< without its line end; not of a line that is too long
    int found = 0; ///< how many of the 20 fields it has
    // Of a Step:
    QStringList fields; ///< the 20
    bool hasMore = false; ///< fields beyond these, which are ignored
    ProgramStep step;
};

/// Writes one line a step, each ended by LF, numbered from 0. Texts go out as they stand: white space inside
/// a set point or a group name splits it into several fields when it is read again.
void write(QTextStream& stream, const QVector<ProgramStep>& steps);

/// The step that a line says; nothing where it has fewer than 20 fields. Fields are separated by any white
/// space. What is no number counts as 0 where a number is needed; the step number in front and fields beyond
/// the 20th are ignored. The step is as the table holds it: a time keeps six digits, a text `longestText`
/// characters.
std::optional<ProgramStep> stepOf(const QString& line);

/// The step that the 20 fields of a line say.
ProgramStep stepOf(const QStringList& fields);

/// A time in s as the table shows and keeps it: with six significant digits.
double tableTime(double timeSec);

/// Reads the steps of the lines that say one, `limit` at the most, and skips the others, among them those of
/// more than 65,536 characters. However long the text, no more of it than such a line is held at a time.
QVector<ProgramStep> read(QTextStream& stream, int limit);

/// Hands the file's lines to `take` in their order, until it says false. False when the file cannot be opened
/// or read as far as it is wanted, when it is no plain file, and when it is larger than 16 MiB: no program
/// is.
bool readLines(const QString& fileName, const std::function<bool(const Line&)>& take);

/// The steps of the file, as read() gives them. Nothing where readLines() is false.
std::optional<QVector<ProgramStep>> load(const QString& fileName, int limit);

} // namespace ProgramFile
