#pragma once

#include "support/answeringadapter.h"

#include <QProcess>

/// An AnsweringAdapter in a process of its own, so that its work is not counted as the station's: the running
/// program starts itself again with a switch (see peerMain). It ends when its client leaves, or when nobody
/// has come for half a minute.
class Peer
{
public:
    /// Starts it on a loopback address of this process alone and names that address to the station
    /// (NELVO_ADAPTER). Answers come `delayMs` after their request.
    explicit Peer(int delayMs);
    ~Peer();
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    /// Awaits its end, after the station has left, and gives all it saw, in order.
    std::vector<WireEvent> finish();

private:
    QProcess process;
};

/// Those of `events` that are of that kind, in order.
std::vector<WireEvent> only(WireEvent::Kind kind, const std::vector<WireEvent>& events);

/// True when the arguments ask for the peer instead of the benchmark; the main function then gives way to
/// peerMain().
bool isPeer(int argc, char* argv[]);

/// The peer's main function.
int peerMain(int argc, char* argv[]);
