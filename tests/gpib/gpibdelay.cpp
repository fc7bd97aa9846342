// A shutter command must not wait for the acknowledgement of what was sent before it: the link's connection
// has the low-delay option, whichever way its host is named.

#include "gpib/gpib.h"

#include "support/testmain.h"

#include <QHostInfo>
#include <QTcpServer>
#include <QTcpSocket>

#ifdef Q_OS_UNIX
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

using namespace TestText;

namespace {

#ifdef Q_OS_UNIX

// The low-delay option of this process's connection to `port`; -1 when there is none.
int lowDelayOfConnectionTo(quint16 port)
{
    constexpr int mostDescriptors = 256;
    for (int descriptor = 0; descriptor < mostDescriptors; ++descriptor) {
        sockaddr_in peer{};
        socklen_t size = sizeof(peer);
        const bool isIt = getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) == 0
            && peer.sin_family == AF_INET && ntohs(peer.sin_port) == port;
        int value = 0;
        size = sizeof(value);
        if (isIt && getsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &value, &size) == 0) {
            return value != 0 ? 1 : 0;
        }
    }
    return -1;
}

#endif

} // namespace

class GpibDelayTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingWaitsForAnAcknowledgement_data()
    {
        QTest::addColumn<QString>("host");
        QTest::newRow("by number") << "127.0.0.1"_s;
        QTest::newRow("by name") << "localhost"_s;
    }

    void nothingWaitsForAnAcknowledgement()
    {
#ifdef Q_OS_UNIX
        QFETCH(QString, host);
        const QHostAddress own(QHostAddress::LocalHost);
        if (!QHostInfo::fromName(host).addresses().contains(own)) {
            QSKIP("this machine does not know its own name localhost");
        }
        QTcpServer server;
        QVERIFY(server.listen(own));
        GPIB gpib;
        gpib.connectAdapter(host, server.serverPort());
        QTRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> peer(server.nextPendingConnection());
        QTRY_COMPARE(peer->bytesAvailable(), 6);
        QCOMPARE(lowDelayOfConnectionTo(server.serverPort()), 1);
#else
        QSKIP("the option of a socket in somebody else's hands cannot be asked for here");
#endif
    }
};

NELVO_TEST_MAIN(GpibDelayTest)
#include "gpibdelay.moc"
