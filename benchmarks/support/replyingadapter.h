#pragma once

#include <QByteArray>
#include <QObject>
#include <QTcpServer>

#include <vector>

class QTcpSocket;

/// Something that happened on the wire, as the adapter saw it.
struct WireEvent
{
    enum Kind { Request, Reply, Shutters };

    Kind kind = Request;
    qint64 ns = 0; ///< steady clock: the last byte was there, or the reply was about to be sent
    int value = 0; ///< the channel (0 to 8), or the shutter mask
};

/// The far end of the link as the benchmarks need it: answers the read requests of the temperature
/// controllers, takes shutter commands, ignores the rest, and notes the time of each.
class ReplyingAdapter : public QObject
{
    Q_OBJECT

public:
    /// Answers come `delayMs` after their request; 0 answers at once.
    explicit ReplyingAdapter(int delayMs);

    /// Listens on the adapter's port of `address`. False when it cannot.
    bool listen(const QString& address);

    bool hasClient() const { return client != nullptr; }
    const std::vector<WireEvent>& events() const { return seen; }

signals:
    void clientLeft();

private:
    void accept();
    void take();
    void takeLine(const QByteArray& line, qint64 ns);
    void reply(int channel);
    void note(WireEvent::Kind kind, qint64 ns, int value);

    QTcpServer server;
    QTcpSocket* client = nullptr;
    QByteArray unread;
    std::vector<WireEvent> seen;
    int replyAfterMs = 0;
    int repliesSent = 0;
};
