#pragma once

#include "support/scriptedadapter.h"

#include <vector>

/// Something that happened on the wire, as the adapter saw it.
struct WireEvent
{
    enum Kind { Request, Reply, Shutters };

    Kind kind = Request;
    qint64 ns = 0; ///< steady clock: the last byte was there, or the reply was about to be sent
    int value = 0; ///< the channel (0 to 8), or the shutter mask
};

/// The far end of the link with the instruments behind it, in real time: answers reads and set points, takes
/// shutter commands, and notes the time of each.
class AnsweringAdapter : public QObject
{
    Q_OBJECT

public:
    /// Listens on `address`, port 1234. Answers come `delayMs` after their request; 0 answers at once.
    explicit AnsweringAdapter(int delayMs, const QString& address = ownLoopbackAddress());

    bool hasClient() const { return adapter.isConnected(); }
    const std::vector<WireEvent>& events() const { return seen; }

signals:
    void clientLeft();

private:
    void take();
    void answer(const Wire::Message& message);
    void note(WireEvent::Kind kind, qint64 ns, int value) { seen.push_back({kind, ns, value}); }

    ScriptedAdapter adapter;
    std::vector<WireEvent> seen;
    int answerAfterMs;
    int answersSent = 0;
};
