// The life of the link: without a socket, connecting by number and by name, reconnecting, ending.

#include "gpib/gpib.h"

#include "app/adapteraddress.h"
#include "support/messagecapture.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"

#include <QHostInfo>
#include <QTcpSocket>

#include <memory>

using namespace TestText;

namespace {

const LoggedMessage* only(const QList<LoggedMessage>& messages)
{
    return messages.size() == 1 ? &messages.first() : nullptr;
}

} // namespace

class GpibLinkTest : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        const QMetaObject& meta = GPIB::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
        const QMetaMethod first = meta.method(meta.methodOffset());
        QCOMPARE(first.methodType(), QMetaMethod::Signal);
        QCOMPARE(first.methodSignature(), QByteArray("dataReady(int,QByteArray)"));
        QCOMPARE(first.parameterNames(), (QByteArrayList{"bytes", "rbuf"}));
        const QMetaMethod second = meta.method(meta.methodOffset() + 1);
        QCOMPARE(second.methodType(), QMetaMethod::Slot);
        QCOMPARE(second.access(), QMetaMethod::Private);
        QCOMPARE(second.methodSignature(), QByteArray("rcvMsg()"));
    }

    void aFreshLinkKnowsNothing()
    {
        GPIB gpib;
        QCOMPARE(gpib.parent(), nullptr);
        QCOMPARE(gpib.address(), -1);
        QVERIFY(!gpib.isReplyPending());
    }

    void withoutASocketItSaysSoAtAFixedPlace()
    {
        GPIB gpib;
        const MessageCapture capture;
        QVERIFY(!gpib.isConnected());
        const QList<LoggedMessage> messages = MessageCapture::messages();
        const LoggedMessage* message = only(messages);
        QVERIFY(message != nullptr);
        QCOMPARE(message->type, QtDebugMsg);
        QCOMPARE(message->text, "gpib Null"_s);
        QCOMPARE(message->unit, "gpib"_s);
        QCOMPARE(message->line, 25);
        QCOMPARE(message->function, "bool GPIB::isConnected()"_s);
        QCOMPARE(message->category, "default"_s);
    }

    void withoutASocketNothingIsSentAndNothingBreaks()
    {
        GPIB gpib;
        const MessageCapture capture;
        gpib.sndMsg("text");
        gpib.sndRaw("raw", 3);
        gpib.setEos(3);
        gpib.setEoi(1);
        gpib.setAuto(1);
        QVERIFY(gpib.setAddr(3));
        QCOMPARE(gpib.bytesAvailable(), 0);
        QCOMPARE(MessageCapture::texts(), QStringList());
    }

    void withASocketItIsConnectedAtOnce()
    {
        ScriptedAdapter adapter;
        GPIB gpib;
        gpib.connectAdapter(adapter.address(), adapterPort);
        const MessageCapture capture;
        QVERIFY(gpib.isConnected());
        QVERIFY(!adapter.isConnected());
        QCOMPARE(MessageCapture::texts(), QStringList());
    }

    void aHostNameIsLookedUp()
    {
        const QHostAddress own(QHostAddress::LocalHost);
        if (!QHostInfo::fromName("localhost"_s).addresses().contains(own)) {
            QSKIP("this machine does not know its own name localhost");
        }
        QTcpServer server;
        QVERIFY(server.listen(own));
        GPIB gpib;
        gpib.connectAdapter("localhost"_s, server.serverPort());
        gpib.sndMsg("kept until the name is found");
        QTRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> peer(server.nextPendingConnection());
        QTRY_COMPARE(peer->bytesAvailable(), 35);
        QCOMPARE(peer->readAll(), QByteArray("++eoi\nkept until the name is found\n"));
    }

    void thePortHasSixteenBits()
    {
        ScriptedAdapter adapter;
        GPIB gpib;
        gpib.connectAdapter(adapter.address(), adapterPort + 65536);
        QVERIFY(adapter.expect("++eoi\n"));
    }

    void reconnectingKeepsTheSettings()
    {
        ScriptedAdapter adapter;
        GPIB gpib;
        gpib.connectAdapter(adapter.address(), adapterPort);
        gpib.setAddr(1);
        gpib.setEos(0);
        gpib.setEoi(0);
        QVERIFY(adapter.expect("++eoi\n++addr 1\n++eos 0\n++eoi\n"));

        gpib.connectAdapter(adapter.address(), adapterPort);
        gpib.setAddr(1);
        gpib.setEos(0);
        gpib.setEoi(0);
        gpib.sndMsg("after");
        // The opening line shows the mode known from before: the lag spans the connections.
        QVERIFY(adapter.expect("++eoi 0\nafter\n"));
        QVERIFY(adapter.expectNothing());
    }

    void reconnectingLeavesOneConnection()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress(ownLoopbackAddress())));
        GPIB gpib;
        QSignalSpy spy(&gpib, &GPIB::dataReady);
        gpib.connectAdapter(ownLoopbackAddress(), server.serverPort());
        QTRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> first(server.nextPendingConnection());
        QTRY_COMPARE(first->bytesAvailable(), 6);

        gpib.connectAdapter(ownLoopbackAddress(), server.serverPort());
        QTRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> second(server.nextPendingConnection());
        QTRY_COMPARE(first->state(), QAbstractSocket::UnconnectedState);
        QTRY_COMPARE(second->bytesAvailable(), 6);
        second->write("a line\n");
        QTRY_COMPARE(spy.count(), 1);
    }

    void reconnectingKeepsThePendingReply()
    {
        ScriptedAdapter adapter;
        GPIB gpib;
        gpib.connectAdapter(adapter.address(), adapterPort);
        QVERIFY(adapter.expect("++eoi\n"));
        gpib.setReplyPending();
        gpib.connectAdapter(adapter.address(), adapterPort);
        QVERIFY(adapter.expect("++eoi\n"));
        QVERIFY(gpib.isReplyPending());
        adapter.send("a line over the new connection\n");
        QVERIFY(!gpib.isReplyPending());
    }

    void reconnectingForgetsHalfALine()
    {
        ScriptedAdapter adapter;
        GPIB gpib;
        QSignalSpy spy(&gpib, &GPIB::dataReady);
        gpib.connectAdapter(adapter.address(), adapterPort);
        QVERIFY(adapter.expect("++eoi\n"));
        adapter.send("half a ");
        QTRY_COMPARE(gpib.bytesAvailable(), 7);

        gpib.connectAdapter(adapter.address(), adapterPort);
        QVERIFY(adapter.expect("++eoi\n"));
        adapter.send("line\n");
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.first().at(1).toByteArray(), QByteArray("line"));
    }

    void aCutConnectionIsNotNoticed()
    {
        ScriptedAdapter adapter;
        GPIB gpib;
        gpib.connectAdapter(adapter.address(), adapterPort);
        QVERIFY(adapter.expect("++eoi\n"));
        gpib.setReplyPending();
        const MessageCapture capture;
        adapter.cut();
        QVERIFY(gpib.isConnected());
        QVERIFY(gpib.isReplyPending());
        QCOMPARE(MessageCapture::texts(), QStringList());
    }

    void endingClosesTheConnection()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress(ownLoopbackAddress())));
        auto gpib = std::make_unique<GPIB>();
        gpib->connectAdapter(ownLoopbackAddress(), server.serverPort());
        QTRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> peer(server.nextPendingConnection());
        QTRY_COMPARE(peer->bytesAvailable(), 6);
        {
            const MessageCapture capture;
            gpib.reset();
            QCOMPARE(MessageCapture::texts(), QStringList());
        }
        QTRY_COMPARE(peer->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(peer->readAll(), QByteArray("++eoi\n"));
    }

    void endingWithoutASocketSaysSo()
    {
        auto gpib = std::make_unique<GPIB>();
        const MessageCapture capture;
        gpib.reset();
        QCOMPARE(MessageCapture::texts(), QStringList{"gpib Null"_s});
    }
};

NELVO_TEST_MAIN(GpibLinkTest)
#include "gpiblink.moc"
