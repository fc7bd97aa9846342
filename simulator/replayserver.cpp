#include "simulator/replayserver.h"

#include "simulator/printable.h"

#include <QTcpSocket>

#include <utility>

namespace Chamber {

ReplayServer::ReplayServer(Recording toPlay, const Options& chosen, EventSink sink, Clock driven)
    : recording(std::move(toPlay))
    , options(chosen)
    , log(std::move(sink))
    , clock(driven ? std::move(driven) : [this] { return steady.elapsed(); })
{
    steady.start();
    dueTimer.setSingleShot(true);
    dueTimer.setTimerType(Qt::PreciseTimer);
    connect(&dueTimer, &QTimer::timeout, this, &ReplayServer::flush);
    connect(&server, &QTcpServer::newConnection, this, &ReplayServer::admit);
}

bool ReplayServer::listen()
{
    if (!server.listen(options.listenAddress, options.port)) {
        return false;
    }
    log("listening " + server.serverAddress().toString().toUtf8() + ':'
        + QByteArray::number(server.serverPort()));
    return true;
}

void ReplayServer::admit()
{
    client = server.nextPendingConnection();
    server.close();
    client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    log("connected");
    connect(client, &QTcpSocket::readyRead, this, &ReplayServer::receive);
    connect(client, &QTcpSocket::disconnected, this, [this] {
        log("disconnected");
        if (!isOver()) {
            log("left at byte " + QByteArray::number(position) + " of "
                + QByteArray::number(recording.commands.size()));
        }
        emit clientLeft();
    });
    scheduleReplies();
    receive();
}

void ReplayServer::receive()
{
    const QByteArray came = client->readAll();
    if (came.isEmpty()) {
        return;
    }
    emit received(came);
    if (recording.commands.mid(position, came.size()) != came) {
        tellDifference(came);
        return;
    }
    position += came.size();
    lastDueMs = qMax(lastDueMs, clock());
    scheduleReplies();
    if (isOver()) {
        log("replayed to the end");
    }
}

void ReplayServer::tellDifference(const QByteArray& came)
{
    constexpr int context = 20;
    int same = 0;
    while (same < came.size() && position + same < recording.commands.size()
        && came[same] == recording.commands[position + same]) {
        ++same;
    }
    const int start = qMax(0, position + same - context);
    const QByteArray before = recording.commands.mid(start, position + same - start);
    log("differs at byte " + QByteArray::number(position + same) + " behind \"" + printable(before) + '"');
    log("the station sent \"" + printable(came.mid(same, context)) + '"');
    log("the recording has \"" + printable(recording.commands.mid(position + same, context)) + '"');
    disconnect(client, &QTcpSocket::readyRead, this, nullptr);
    emit differed();
}

// All replies whose commands have come are on their way, each as long as it took then.
void ReplayServer::scheduleReplies()
{
    while (nextReply < recording.replies.size() && recording.replies[nextReply].after <= position) {
        const Recording::Reply& reply = recording.replies[nextReply];
        lastDueMs += static_cast<qint64>(1000.0 * reply.delaySec / options.timeScale);
        queue.push(reply.bytes, lastDueMs);
        ++nextReply;
    }
    flush();
}

void ReplayServer::flush()
{
    const QByteArray due = queue.takeDue(clock());
    if (!due.isEmpty()) {
        client->write(due);
        emit sent(due);
    }
    if (!queue.isEmpty()) {
        dueTimer.start(static_cast<int>(qMax<qint64>(0, queue.nextDueMs() - clock())));
    }
}

} // namespace Chamber
