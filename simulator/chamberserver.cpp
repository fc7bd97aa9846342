#include "simulator/chamberserver.h"

#include <QTcpSocket>

#include <utility>

namespace Chamber {

namespace {

/// While a client leaves more than this unread, nothing more is read from it.
constexpr qint64 mostUnsent = 0x100000;
constexpr qint64 chunkSize = 0x10000;
constexpr int successorPatienceMs = 100;
constexpr quint64 jitterStream = 2000;

QByteArray place(const QHostAddress& address, quint16 port)
{
    const QByteArray host = address.toString().toUtf8();
    const bool isIpv6 = address.protocol() == QAbstractSocket::IPv6Protocol;
    return (isIpv6 ? '[' + host + ']' : host) + ':' + QByteArray::number(port);
}

} // namespace

ChamberServer::ChamberServer(const Options& chosen, EventSink sink, Clock driven)
    : options(chosen)
    , log(std::move(sink))
    , clock(driven ? std::move(driven) : [this] { return steady.elapsed(); })
    , rack(chosen.seed, chosen.spreadDegC)
    , faults(chosen.faultRates, chosen.seed)
    , jitter(chosen.seed, jitterStream)
{
    steady.start();
    dueTimer.setSingleShot(true);
    dueTimer.setTimerType(Qt::PreciseTimer);
    connect(&dueTimer, &QTimer::timeout, this, &ChamberServer::flush);
    connect(&server, &QTcpServer::newConnection, this, &ChamberServer::acceptClients);
}

ChamberServer::~ChamberServer()
{
    server.close();
    if (client != nullptr) {
        client->disconnect(this);
        client->abort();
        log("disconnected");
    }
}

bool ChamberServer::listen()
{
    if (!server.listen(options.listenAddress, options.port)) {
        return false;
    }
    log("listening " + place(server.serverAddress(), server.serverPort()));
    return true;
}

void ChamberServer::acceptClients()
{
    while (QTcpSocket* newcomer = server.nextPendingConnection()) {
        newcomer->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        if (client == nullptr) {
            admit(newcomer);
            continue;
        }
        // A client that comes right after another one left may be seen before the other's leaving is.
        QTimer::singleShot(successorPatienceMs, newcomer, [this, newcomer] {
            if (client == nullptr) {
                admit(newcomer);
            } else {
                turnAway(newcomer);
            }
        });
    }
}

void ChamberServer::admit(QTcpSocket* newcomer)
{
    client = newcomer;
    client->setReadBufferSize(mostUnsent);
    rack.resetAdapter();
    log("connected");
    connect(client, &QTcpSocket::readyRead, this, &ChamberServer::receive);
    connect(client, &QTcpSocket::bytesWritten, this, &ChamberServer::receive);
    connect(client, &QTcpSocket::disconnected, this, &ChamberServer::releaseClient);
    receive();
    if (client != nullptr && client->state() == QAbstractSocket::UnconnectedState) {
        releaseClient(); // it left while it waited
    }
}

void ChamberServer::turnAway(QTcpSocket* second)
{
    log("refused " + place(second->peerAddress(), second->peerPort()));
    connect(second, &QTcpSocket::disconnected, second, &QObject::deleteLater);
    second->write("adapter in use\r\n");
    second->disconnectFromHost();
}

void ChamberServer::receive()
{
    while (client != nullptr && client->bytesAvailable() > 0
        && client->bytesToWrite() + queue.byteCount() <= mostUnsent) {
        const QByteArray chunk = client->read(chunkSize);
        emit received(chunk);
        for (const AdapterLine& line : parser.feed(chunk)) {
            if (client == nullptr || halfOpen) {
                break;
            }
            take(line);
        }
    }
}

void ChamberServer::take(const AdapterLine& line)
{
    const Rack::Outcome outcome = rack.take(line, modelSec());
    if (!outcome.event.isEmpty()) {
        log(outcome.event);
    }
    if (!outcome.reply.isEmpty()) {
        deliver(outcome);
    }
}

void ChamberServer::deliver(const Rack::Outcome& outcome)
{
    if (!outcome.fromInstrument) {
        queue.push(outcome.reply + "\r\n", clock() + latencyMs());
        flush();
        return;
    }
    const Delivery delivery = faults.decide(outcome.reply, outcome.unit);
    for (const FaultKind kind : delivery.struck) {
        log("fault " + faultName(kind) + " 0" + QByteArray::number(outcome.unit));
    }
    obey(delivery);
}

void ChamberServer::obey(const Delivery& delivery)
{
    switch (delivery.link) {
    case Delivery::Link::Stays:
        break;
    case Delivery::Link::Cut:
        client->abort();
        return;
    case Delivery::Link::HalfOpen:
        halfOpen = true;
        queue.clear();
        return;
    }
    const qint64 arrivalMs = clock() + latencyMs();
    for (int i = 0; i < delivery.pieces.size(); ++i) {
        const Delivery::Piece& piece = delivery.pieces[i];
        const bool waits = delivery.waitsForNext && i == delivery.pieces.size() - 1;
        if (waits) {
            queue.pushWaiting(piece.bytes, arrivalMs + piece.delayMs);
        } else {
            queue.push(piece.bytes, arrivalMs + piece.delayMs);
        }
    }
    flush();
}

void ChamberServer::flush()
{
    if (client == nullptr) {
        return;
    }
    const QByteArray due = queue.takeDue(clock());
    if (!due.isEmpty()) {
        client->write(due);
        emit sent(due);
    }
    if (!queue.isEmpty()) {
        dueTimer.start(static_cast<int>(qMax<qint64>(0, queue.nextDueMs() - clock())));
    }
}

void ChamberServer::releaseClient()
{
    // What it sent before it left still counts.
    receive();
    client->deleteLater();
    client = nullptr;
    halfOpen = false;
    parser.reset();
    queue.clear();
    dueTimer.stop();
    log("disconnected");
    emit clientLeft();
}

int ChamberServer::latencyMs()
{
    return qMax(0, options.latencyMs - options.jitterMs + jitter.below(2 * options.jitterMs + 1));
}

double ChamberServer::modelSec() const
{
    return static_cast<double>(clock()) * 1e-3 * options.timeScale;
}

} // namespace Chamber
