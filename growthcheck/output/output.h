#pragma once

#include "growthcheck/check/check.h"
#include "growthcheck/comparison/comparison.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// The forms in which what was found goes out. docs/growthcheck.md describes them.
namespace GrowthCheck {

/// Takes a piece of what goes out. Long outputs come in many, so that none is held whole.
using Sink = std::function<void(const QByteArray& utf8)>;

/// For a terminal of 80 columns.
void writeText(const CheckedProgram& checked, const Sink& sink);

/// One JSON object a program; `writeJson` writes the whole document.
void writeJson(const QVector<CheckedProgram>& checked, const Sink& sink);

/// An event a line, the first one names the columns.
void writeCsvHead(const Sink& sink);
void writeCsv(const CheckedProgram& checked, const Sink& sink);

/// A value change dump of the seven shutters, the nine set points, step and pass.
void writeVcd(const CheckedProgram& checked, const Sink& sink);

/// A run, held against its program: as a report, as a JSON object, and as a table with an event a line.
void writeComparedText(const Comparison& comparison, const Sink& sink);
void writeComparedJson(const Comparison& comparison, const Sink& sink);
void writeComparedCsv(const Comparison& comparison, const Sink& sink);

/// A message a line: when, to whom, its bytes.
void writeWire(const CheckedProgram& checked, const Sink& sink);

} // namespace GrowthCheck
