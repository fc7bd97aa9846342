#pragma once

#include <QByteArray>
#include <QString>

namespace GrowthCheck {

/// Writes to standard output: files and pipes get the bytes, a console of Windows the letters, whatever its
/// code page.
void writeOut(const QByteArray& utf8);

/// Writes a line to standard error, in the system's encoding.
void complain(const QString& line);

/// Waits for the Enter key, so that a console that goes with this process can be read before.
void waitForReader();

} // namespace GrowthCheck
