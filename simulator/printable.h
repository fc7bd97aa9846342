#pragma once

#include <QByteArray>

namespace Chamber {

/// Bytes for a log line: one line, whatever they are; cut after 60.
QByteArray printable(const QByteArray& bytes);

} // namespace Chamber
