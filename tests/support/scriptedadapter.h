#pragma once

#include "support/wire.h"

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <QTcpServer>

class QTcpSocket;

/// A loopback address of this process alone (127.x.y.z), so that tests run side by side although the
/// adapter's port is always 1234. Never outside of 127.0.0.0/8.
QString ownLoopbackAddress();

/// Control characters as words: "\x1B\x04\n" reads "<ESC><04><LF>".
QByteArray readable(const QByteArray& bytes);

/// The far end of the link, played by a test: it listens as an adapter does, awaits bytes and answers.
class ScriptedAdapter : public QObject
{
    Q_OBJECT

public:
    /// Listens on `address`, port 1234.
    explicit ScriptedAdapter(const QString& address = ownLoopbackAddress());

    QString address() const { return server.serverAddress().toString(); }
    bool isConnected() const { return client != nullptr; }

    /// True when exactly `bytes` come next; waits 5 s for them at the most. On failure it prints what was
    /// awaited and what came.
    bool expect(const QByteArray& bytes);

    /// True when nothing came that was not expected, after what is on its way has arrived.
    bool expectNothing();

    /// Everything that came and was not expected yet.
    QByteArray received() const { return unread; }
    void forget() { unread.clear(); }

    /// Takes the whole messages among them.
    QList<Wire::Message> takeMessages() { return Wire::takeMessages(unread); }

    /// Sends `bytes` and lets the program take them in.
    void send(const QByteArray& bytes);

    /// Sends `bytes` at once, to a program that is already connected; the caller turns the event loop.
    void post(const QByteArray& bytes);

    /// From here on nothing more than one byte is taken from the program; it stays connected.
    void stopTaking();
    /// Whether that byte has come: of what the program said next.
    bool hasFirstByte() const;
    /// Cuts the connection; listening goes on.
    void cut();

signals:
    void arrived();
    void clientLeft();

private:
    void accept();
    void settle();

    QTcpServer server;
    QTcpSocket* client = nullptr;
    QByteArray unread;
};
