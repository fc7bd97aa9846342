#pragma once

#include "simulator/adapterparser.h"
#include "simulator/faults.h"
#include "simulator/options.h"
#include "simulator/rack.h"
#include "simulator/sendqueue.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTcpServer>
#include <QTimer>

#include <functional>

class QTcpSocket;

namespace Chamber {

/// The socket end of the chamber: takes one client at a time, hands its lines to the rack, and sends the
/// replies as the faults have it.
///
/// Every client finds a fresh adapter; temperatures, shutters and silent controllers stay from client to
/// client. A second client beside the first gets the line "adapter in use" and is shown out.
class ChamberServer : public QObject
{
    Q_OBJECT

public:
    /// Takes one event, for example "shutters oxxoxxx".
    using EventSink = std::function<void(const QByteArray& event)>;

    /// Gives a time in ms that never runs back.
    using Clock = std::function<qint64()>;

    /// Lives by the machine's steady clock, or by `driven` where there is one; then replies leave when tick()
    /// is called and their time has come.
    ChamberServer(const Options& chosen, EventSink sink, Clock driven = nullptr);
    ~ChamberServer() override;

    /// Listens where the options say. False when that cannot be, errorString() then tells why.
    bool listen();
    QString errorString() const { return server.errorString(); }

    /// With a driven clock: sends what is due.
    void tick() { flush(); }

    /// Where it listens; the port that was taken when the options left it open.
    quint16 port() const { return server.serverPort(); }

    const Rack& instruments() const { return rack; }

signals:
    /// Bytes have come from the client, and are taken in now.
    void received(const QByteArray& bytes);
    /// The client is gone, of its own will or by a fault.
    void clientLeft();
    /// Bytes are on their way to the client.
    void sent(const QByteArray& bytes);

private:
    void acceptClients();
    void admit(QTcpSocket* newcomer);
    void turnAway(QTcpSocket* second);
    void receive();
    void take(const AdapterLine& line);
    void deliver(const Rack::Outcome& outcome);
    void obey(const Delivery& delivery);
    void flush();
    void releaseClient();
    double modelSec() const;
    int latencyMs();

    const Options options;
    const EventSink log;
    QElapsedTimer steady;
    const Clock clock; ///< ms
    Rack rack;
    Faults faults;
    RandomSource jitter;
    AdapterParser parser;
    SendQueue queue;
    QTimer dueTimer;
    QTcpServer server;
    QTcpSocket* client = nullptr; ///< owned by the server; null while nobody is there
    bool halfOpen = false;
};

} // namespace Chamber
