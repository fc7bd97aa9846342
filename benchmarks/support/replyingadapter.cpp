#include "support/replyingadapter.h"

#include "support/steadyclock.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

namespace {

constexpr quint16 port = 1234;
constexpr char endOfTransmission = '\x04';
constexpr char enquiry = '\x05';
constexpr char escape = '\x1B';
constexpr int shutterCommandSize = 3;

bool isReadRequest(const QByteArray& line)
{
    return line.size() == 6 && line[0] == endOfTransmission && line[5] == enquiry;
}

} // namespace

ReplyingAdapter::ReplyingAdapter(int delayMs)
    : replyAfterMs(delayMs)
{
    connect(&server, &QTcpServer::newConnection, this, &ReplyingAdapter::accept);
}

bool ReplyingAdapter::listen(const QString& address)
{
    return server.listen(QHostAddress(address), port);
}

void ReplyingAdapter::accept()
{
    client = server.nextPendingConnection();
    client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(client, &QTcpSocket::readyRead, this, &ReplyingAdapter::take);
    connect(client, &QTcpSocket::disconnected, this, &ReplyingAdapter::clientLeft);
}

void ReplyingAdapter::take()
{
    unread += client->readAll();
    const qint64 ns = steadyNowNs();
    while (!unread.isEmpty()) {
        if (unread[0] == escape) {
            // The mask may be any byte, a line feed too.
            if (unread.size() < shutterCommandSize) {
                return;
            }
            note(WireEvent::Shutters, ns, static_cast<uchar>(unread[1]));
            unread.remove(0, shutterCommandSize);
            continue;
        }
        const int end = unread.indexOf('\n');
        if (end < 0) {
            return;
        }
        takeLine(unread.left(end), ns);
        unread.remove(0, end + 1);
    }
}

void ReplyingAdapter::takeLine(const QByteArray& line, qint64 ns)
{
    if (!isReadRequest(line)) {
        return;
    }
    const int channel = line[2] - '1';
    note(WireEvent::Request, ns, channel);
    if (replyAfterMs == 0) {
        reply(channel);
    } else {
        QTimer::singleShot(replyAfterMs, Qt::PreciseTimer, this, [this, channel] { reply(channel); });
    }
}

void ReplyingAdapter::reply(int channel)
{
    // Another value each time, as from a real cell: the station has a text to change.
    const double degC = 500.0 + 0.37 * (repliesSent++ % 100);
    const QByteArray line = QString::asprintf("0%dM%07.2fK\n", channel + 1, degC).toLatin1();
    note(WireEvent::Reply, steadyNowNs(), channel);
    client->write(line);
    client->flush();
}

void ReplyingAdapter::note(WireEvent::Kind kind, qint64 ns, int value)
{
    seen.push_back({kind, ns, value});
}
