#include "support/scriptedadapter.h"

#include "app/adapteraddress.h"

#include <QCoreApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QTcpSocket>
#include <QtTest>

namespace {

constexpr int patienceMs = 5000;
constexpr int quietMs = 30;

} // namespace

QString ownLoopbackAddress()
{
    const qint64 pid = QCoreApplication::applicationPid();
    return QStringLiteral("127.%1.%2.%3")
        .arg(16 + ((pid >> 16) & 0x3F))
        .arg((pid >> 8) & 0xFF)
        .arg(pid & 0xFF);
}

QByteArray readable(const QByteArray& bytes)
{
    QByteArray text;
    for (const char byte : bytes) {
        const auto code = static_cast<uchar>(byte);
        if (byte == '\n') {
            text += "<LF>";
        } else if (byte == '\x1B') {
            text += "<ESC>";
        } else if (code < 0x20 || code >= 0x7F) {
            text += '<' + QByteArray(1, byte).toHex().toUpper() + '>';
        } else {
            text += byte;
        }
    }
    return text;
}

ScriptedAdapter::ScriptedAdapter(const QString& address)
{
    if (!server.listen(QHostAddress(address), adapterPort)) {
        qFatal("cannot listen on %s: %s", qPrintable(address), qPrintable(server.errorString()));
    }
    connect(&server, &QTcpServer::newConnection, this, &ScriptedAdapter::accept);
}

void ScriptedAdapter::accept()
{
    client = server.nextPendingConnection();
    client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(client, &QTcpSocket::readyRead, this, [this] {
        unread += client->readAll();
        emit arrived();
    });
    connect(client, &QTcpSocket::disconnected, this, &ScriptedAdapter::clientLeft);
}

bool ScriptedAdapter::expect(const QByteArray& bytes)
{
    QElapsedTimer timer;
    timer.start();
    while (!unread.startsWith(bytes) && bytes.startsWith(unread) && timer.elapsed() < patienceMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    if (unread.startsWith(bytes)) {
        unread.remove(0, bytes.size());
        return true;
    }
    qInfo().noquote() << "awaited" << readable(bytes) << "but got" << readable(unread);
    return false;
}

bool ScriptedAdapter::expectNothing()
{
    settle();
    if (unread.isEmpty()) {
        return true;
    }
    qInfo().noquote() << "awaited nothing but got" << readable(unread);
    return false;
}

void ScriptedAdapter::send(const QByteArray& bytes)
{
    QElapsedTimer timer;
    timer.start();
    while (client == nullptr && timer.elapsed() < patienceMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    if (client == nullptr) {
        qFatal("nobody is connected to the scripted adapter");
    }
    post(bytes);
    settle();
}

void ScriptedAdapter::post(const QByteArray& bytes)
{
    client->write(bytes);
    client->flush();
}

void ScriptedAdapter::stopTaking()
{
    client->setReadBufferSize(1); // what is more stays with the system
    disconnect(client, &QTcpSocket::readyRead, this, nullptr);
}

bool ScriptedAdapter::hasFirstByte() const
{
    return client->bytesAvailable() == 1;
}

void ScriptedAdapter::cut()
{
    if (client != nullptr) {
        client->abort();
        client->deleteLater();
        client = nullptr;
    }
    settle();
}

void ScriptedAdapter::settle()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < quietMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}
