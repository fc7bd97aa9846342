#pragma once

#include <QByteArray>
#include <QString>

/// Replaces the file `name` by `text` (written in text mode: "\n" becomes the platform's line end), or
/// creates it. False when that was not possible; then an old file is still there as it was. The exception is
/// a folder in which no file can be made beside the old one: there it is written over directly, and a write
/// that fails leaves the part that fitted.
bool replaceFile(const QString& name, const QByteArray& text);
