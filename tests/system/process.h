#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

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

    /// Asks the program to end and waits for it.
    void terminate();

    bool isRunning();
    /// Waits until the program has ended by itself, and says what it ended with; -1 when it does not within
    /// 20 s or was ended by a signal.
    int exitCode();
    QString output();
    /// Forgets the output so far.
    void forget();

private:
    void read();

    QProcess process;
    QString collected;
};
