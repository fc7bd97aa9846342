#pragma once

#include "base/channels.h"

#include <QString>
#include <QVector>

namespace GrowthCheck {

/// How much a finding matters. Notes tell what is good to know; from a warning on the program should be
/// looked at.
enum class Severity { Note, Warning, Error };

/// What can be found. Each kind has its line in docs/manual/*/findings.md.
struct Kind
{
    const char* id;
    Severity severity;
};

/// Something found in a program or in a run of it.
struct Finding
{
    Kind kind = {"", Severity::Note};
    QString text; ///< a sentence, in the language of the user
    int line = 0; ///< in the file, counted from 1; 0 for none
    int step = 0; ///< as the table numbers it, counted from 1; 0 for none
    int pass = 0; ///< of a group, counted from 1; 0 for none, or for all
    int channel = -1; ///< see base/channels.h; -1 for none
    qint64 count = 1; ///< how often; the step and the pass are those of the first time

    bool matters() const { return kind.severity >= Severity::Warning; }
};
using Findings = QVector<Finding>;

/// Adds `finding`, or counts it to the one of its kind, step and channel that is there already.
void addOnce(Findings& findings, const Finding& finding);

/// The worst of them; a note when there are none.
Severity worst(const Findings& findings);

/// "note", "warning" or "error": for programs, in no language.
QString severityWord(Severity severity);

} // namespace GrowthCheck
