#pragma once

#include "support/drivenchamber.h"
#include "support/wire.h"

#include <QMap>

#include <array>

/// What may go over the wire: whole messages, shutter commands with the commanded states, set points within
/// what was asked.
class WireCheck
{
public:
    /// The operator commands these shutters, a bit a shutter.
    void command(int mask) { commanded = mask; }
    int commandedMask() const { return commanded; }
    /// Whether the last shutter command on the wire is that of the commanded states.
    bool isObeyed() const { return latestMask == commanded; }
    /// The operator starts a ramp, from the temperature that is shown to a target.
    void ramp(int channel, double fromDegC, double toDegC);
    /// Bytes of the station; the messages that are whole now.
    QList<Wire::Message> take(const QByteArray& bytes);
    /// A connection is over, whatever it left unfinished.
    void linkGone() { pending.clear(); }

    /// What was wrong first; empty while nothing was.
    const QString& wrong() const { return difference; }
    int shutterCommands() const { return commands; }
    int setPoints() const { return sentSetPoints; }

private:
    struct Range
    {
        double lowest = 1.0; // none
        double highest = 0.0;
    };

    void check(const Wire::Message& message);
    void checkSetPoint(const Wire::Message& message);
    void differ(const QString& what, const QByteArray& bytes);

    QByteArray pending;
    int commanded = 0;
    int latestMask = -1; // that was sent; none before
    std::array<Range, Channels::count> asked;
    QString difference;
    int commands = 0;
    int sentSetPoints = 0;
};
