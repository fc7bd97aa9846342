#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// The station's files, in its working directory: what it remembers, the temperature record, the journal, and
/// the journal with every byte of the link.
inline const QString stateFile = QStringLiteral("NelvoCurrentStat.dat");
inline const QString recordFile = QStringLiteral("TemperatureRec.dat");
inline const QString journalFile = QStringLiteral("NelvoJournal.log");
inline const QString wireFile = QStringLiteral("NelvoWire.log");

/// Makes the file `name` hold `bytes`; ends the test program when that fails.
void putFile(const QString& name, const QByteArray& bytes);

/// What the file `name` holds, line ends of the platform made LF; "(no file)" when it cannot be read.
QByteArray fileText(const QString& name);

/// A full disk, as near as a test comes to it: while it lives, no file of this process may grow beyond some
/// bytes. Only on Unix.
class FullDisk
{
public:
    /// False where a disk cannot be made full; skip the test then.
    static bool isPossible();

    explicit FullDisk(int bytes);
    ~FullDisk();
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    struct Before;
    std::unique_ptr<Before> before;
};
