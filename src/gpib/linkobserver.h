#pragma once

#include <QByteArray>
#include <QString>

/// Is told what happens on the link to the instruments; this one turns a deaf ear. Nothing that an observer
/// does changes what the link does.
class LinkObserver
{
public:
    LinkObserver() = default;
    virtual ~LinkObserver() = default;
    LinkObserver(const LinkObserver&) = delete;
    LinkObserver& operator=(const LinkObserver&) = delete;

    /// The connection is up.
    virtual void connected() { }
    /// There is no connection, or no longer one; `wasUp` tells which.
    virtual void notConnected(bool /*wasUp*/, const QString& /*why*/) { }
    /// Bytes were handed to the socket.
    virtual void sent(const QByteArray& /*bytes*/) { }
    /// Bytes arrived.
    virtual void received(const QByteArray& /*bytes*/) { }
    /// A reply is awaited from now on.
    virtual void replyAwaited() { }
    /// A complete line arrived, its white space simplified; `wasAwaited` tells whether a reply was.
    virtual void lineArrived(const QByteArray& /*line*/, bool /*wasAwaited*/) { }
};
