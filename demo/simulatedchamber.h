#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// A chambersim of the demonstration's own, started and ended with it. What it logs is printed and
/// remembered.
class SimulatedChamber
{
public:
    ~SimulatedChamber();

    /// Starts `program` listening on `address`, port 1234; false, with a reason in error(), when it does not.
    bool start(const QString& program, const QString& address);
    void stop();
    QString error() const { return reason; }

    /// Counts the events so far that begin with `event` ("shutters oxxoxxx", "setpoint 02").
    int count(const QString& event) const;

    /// The newest event that begins with `beginning`; empty when there is none.
    QString last(const QString& beginning) const;

private:
    void read();

    QProcess process;
    QByteArray unfinished;
    QStringList events; // without the seconds in front
    QString reason;
};
