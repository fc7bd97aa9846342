#pragma once

#include "program/programstep.h"

#include <QVector>

#include <optional>

class QTextStream;

/// The text form of a growth program: one line a step, 20 fields separated by tabs. docs/program-file.md
/// describes it.
namespace ProgramFile {

/// Writes one line a step, each ended by LF, numbered from 0. Texts go out as they stand: white space inside
/// a set point or a group name splits it into several fields when it is read again.
void write(QTextStream& stream, const QVector<ProgramStep>& steps);

/// The step that a line says; nothing where it has fewer than 20 fields. Fields are separated by any white
/// space. What is no number counts as 0 where a number is needed; the step number in front and fields beyond
/// the 20th are ignored.
std::optional<ProgramStep> stepOf(const QString& line);

/// Reads the steps of the lines that say one, `limit` at the most, and skips the others, among them those of
/// more than 65,536 characters. However long the text, no more of it than such a line is held at a time.
QVector<ProgramStep> read(QTextStream& stream, int limit);

/// The steps of the file, as read() gives them. Nothing when it cannot be opened or read to the end of what
/// is needed, when it is no plain file, and when it is larger than 16 MiB: no program is.
std::optional<QVector<ProgramStep>> load(const QString& fileName, int limit);

} // namespace ProgramFile
