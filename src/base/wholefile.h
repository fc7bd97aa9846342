#pragma once

#include <QByteArray>
#include <QString>

/// Text files that are written whole or not at all. "\n" becomes the platform's line end.

/// Replaces the file `name` by `text`, or creates it: written beside and renamed, so that whatever happens
/// there is the old file or the new one. In a folder that allows no new file the old one is written over;
/// should that fail, as on a full disk, the old text is put back. False when the file could not be replaced.
bool replaceFile(const QString& name, const QByteArray& text);

/// Adds `text` to the end of the file `name`, or creates it. A last line that lacks its line end, as an
/// editor may leave it, gets it first. False when there was no room for all of it: then the file has its
/// former length again.
bool appendToFile(const QString& name, const QByteArray& text);
