#pragma once

#include "simulator/options.h"
#include "simulator/recording.h"
#include "simulator/sendqueue.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTcpServer>
#include <QTimer>

#include <functional>

class QTcpSocket;

namespace Chamber {

/// Plays the adapter's side of a recorded session to one client: answers as it was answered then, as long as
/// the client sends what was sent then, byte for byte.
class ReplayServer : public QObject
{
    Q_OBJECT

public:
    using EventSink = std::function<void(const QByteArray& event)>;

    /// Gives a time in ms that never runs back.
    using Clock = std::function<qint64()>;

    /// Lives by the machine's steady clock, or by `driven` where there is one; then replies leave when tick()
    /// is called and their time has come.
    ReplayServer(Recording toPlay, const Options& chosen, EventSink sink, Clock driven = nullptr);

    /// Listens where the options say. False when that cannot be, errorString() then tells why.
    bool listen();
    QString errorString() const { return server.errorString(); }
    quint16 port() const { return server.serverPort(); }

    /// With a driven clock: sends what is due.
    void tick() { flush(); }

    /// How much of the recorded commands has come.
    int matched() const { return position; }
    bool isOver() const
    {
        return position == recording.commands.size() && nextReply == recording.replies.size();
    }

signals:
    /// The client sent something else; what and where was told.
    void differed();
    void clientLeft();
    /// Bytes came from the client.
    void received(const QByteArray& bytes);
    /// Bytes are on their way to the client.
    void sent(const QByteArray& bytes);

private:
    void admit();
    void receive();
    void tellDifference(const QByteArray& came);
    void scheduleReplies();
    void flush();

    const Recording recording;
    const Options options;
    const EventSink log;
    QTcpServer server;
    QTcpSocket* client = nullptr; ///< owned by the server
    QElapsedTimer steady;
    const Clock clock; ///< ms
    QTimer dueTimer;
    SendQueue queue;
    int position = 0; // in the commands
    int nextReply = 0;
    qint64 lastDueMs = 0;
};

} // namespace Chamber
