#pragma once

#include <QMap>
#include <QObject>
#include <QString>

/// A few operator settings that outlive the program, as words under words, kept in step with a small text
/// file: one "key TAB value" a line, the last line of a key wins.
///
/// The file is compacted when it is loaded; while the program runs every change appends a dump of the whole
/// store, or nothing when there is no room for all of it. A file that cannot be read counts as empty, one
/// that cannot be written is left alone, both without a word: the settings in memory are what the program
/// goes by.
class Conditions : public QObject
{
    Q_OBJECT

public:
    /// An empty store without a file.
    Conditions();

    /// Remembers `fname` (relative names count from the working directory), reads the file into the store and
    /// rewrites it compacted: sorted by key (UTF-16 code units), one line a key. The rewrite replaces the
    /// file only when it is whole, so a crash or a full disk leaves the old file.
    void load(const QString& fname);

    /// The value under `key`, white space simplified; empty when there is none. Asking for a missing key adds
    /// it with an empty value to the store in memory.
    QString value(const QString& key);

    /// Stores the pair, both with white space simplified, and appends the whole store to the file.
    void setValue(const QString& key, const QString& value);

    /// Whether the last writing of the file, by either of them, went well.
    bool isSaved() const { return saved; }

private:
    QString fileName;
    bool saved = true;
    QMap<QString, QString> conds;
};
