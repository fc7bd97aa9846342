#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace Chamber {

/// The adapter's side of a session that was written down byte by byte: what the station sent, and what came
/// back when.
struct Recording
{
    struct Reply
    {
        int after = 0; ///< bytes of `commands` that had been sent before it came
        double delaySec = 0.0; ///< how long after the last of them, or after the reply before it
        QByteArray bytes;
    };

    QByteArray commands;
    QVector<Reply> replies;
};

/// Reads the last run of the journal `name` that has bytes in it (the station writes them into NelvoWire.log
/// where NELVO_JOURNAL is "--wire"), the older files beside it included. Nothing when the file cannot be read
/// or has none, and when the run has lost its beginning or other lines; `error` then says so in a line.
std::optional<Recording> readRecording(const QString& name, QString& error);

} // namespace Chamber
