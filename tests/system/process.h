#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/// The programs of the build or, where the environment variable NELVO_TEST_PROGRAMS names a folder, those in
/// it: what is packed or installed is tested by the same tests.
QString chambersimProgram();
QString growthcheckProgram();
QString nelvoProgram();

/// Has the station show its window nowhere or, on Windows, where it is shipped with no such platform, on the
/// screen.
QString stationPlatform();

/// A program of the project, run for a test: its output is collected, and it is ended with this object.
class Process
{
public:
    /// Starts `program`; `environment` holds "NAME=value" entries that are added to the test's own.
    Process(const QString& program, const QStringList& arguments, const QStringList& environment = {});
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Waits until the output (standard output and error) matches `condition`; false after 20 s.
    bool waitFor(const std::function<bool(const QString&)>& condition);

    /// Waits until the output has `text` `times` times.
    bool waitForText(const QString& text, int times = 1);

    /// Asks the program to end, as closing its window does, and waits for it.
    void terminate();
    /// Ends it without asking.
    void kill();

    /// The system's number of the process.
    qint64 id() const { return process.processId(); }
    bool isRunning();
    /// Waits for the program to end by itself; its exit status, or -1 when it has not ended after 20 s or
    /// broke down.
    int exitCode();
    QString output();
    /// Forgets the output so far.
    void forget();

private:
    void read();

    QProcess process;
    QString collected;
};
