#pragma once

#include <QByteArray>
#include <QString>

/// Replaces the file `name` by `text` (written in text mode: "\n" becomes the platform's line end), or
/// creates it. False when that was not possible; then an old file is still there as it was. Only in a folder
/// where no file can be made beside it is the old file written over directly.
bool replaceFile(const QString& name, const QByteArray& text);
