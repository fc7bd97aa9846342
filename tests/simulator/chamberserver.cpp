// The simulator at a socket: replies, clients that come and go, and the faults of a connection.

#include "simulator/chamberserver.h"

#include "base/channels.h"
#include "support/testmain.h"
#include "support/wire.h"

#include <QElapsedTimer>
#include <QTcpSocket>

using namespace Chamber;

namespace {

const QByteArray toTemperatures = "++auto 1\n" + Wire::toTemperatures;

// A chamber with one kind of fault, on a free port.
class RunningChamber
{
public:
    explicit RunningChamber(FaultKind kind = FaultKind::Lost, double rate = 0.0, int latencyMs = 0)
        : server(
            optionsWith(kind, rate, latencyMs), [this](const QByteArray& event) { events.append(event); })
    {
        if (!server.listen()) {
            qFatal("cannot listen: %s", qPrintable(server.errorString()));
        }
    }

    QList<QByteArray> events;
    ChamberServer server;

private:
    static Options optionsWith(FaultKind kind, double rate, int latencyMs)
    {
        Options options;
        options.port = 0;
        options.seed = 2; // its first late reply is only a little late
        options.latencyMs = latencyMs;
        options.jitterMs = latencyMs / 4;
        options.faultRates[static_cast<size_t>(kind)] = rate;
        return options;
    }
};

// A client in the same thread.
class Client
{
public:
    explicit Client(const RunningChamber& chamber)
    {
        takeWhatComes();
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), chamber.server.port());
        if (!QTest::qWaitFor([this] { return socket.state() == QAbstractSocket::ConnectedState; })) {
            qFatal("cannot connect");
        }
    }

    void takeWhatComes()
    {
        socket.setReadBufferSize(0);
        QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this] { take(); });
    }

    // From now on all but a byte stays with the system.
    void stopTaking()
    {
        socket.setReadBufferSize(1);
        QObject::disconnect(&socket, &QTcpSocket::readyRead, &socket, nullptr);
    }

    void take()
    {
        const QByteArray bytes = socket.readAll();
        lineCount += bytes.count('\n');
        received += bytes;
    }

    bool gets(int lines)
    {
        return QTest::qWaitFor([&] { return lineCount >= lines; }, 60000);
    }

    QTcpSocket socket;
    QByteArray received;

private:
    int lineCount = 0;
};

} // namespace

class ChamberServerTest : public QObject
{
    Q_OBJECT

private slots:
    void repliesEndInALineEnd()
    {
        RunningChamber chamber;
        Client client(chamber);
        client.socket.write("++eoi\n");
        QVERIFY(client.gets(1));
        QCOMPARE(client.received, QByteArray("1\r\n"));
    }

    void aClientRightAfterAnotherIsTakenIn()
    {
        RunningChamber chamber;
        for (int i = 0; i < 10; ++i) {
            QTcpSocket first;
            first.connectToHost(QHostAddress(QHostAddress::LocalHost), chamber.server.port());
            QVERIFY(first.waitForConnected());
            // Connected before the server gets to see that the first one leaves.
            QTcpSocket second;
            second.connectToHost(QHostAddress(QHostAddress::LocalHost), chamber.server.port());
            QVERIFY(second.waitForConnected());
            QTRY_COMPARE(chamber.events.count("connected"), 2 * i + 1);
            first.disconnectFromHost();
            QTRY_COMPARE(chamber.events.count("connected"), 2 * i + 2);
            second.disconnectFromHost();
            QTRY_COMPARE(chamber.events.count("disconnected"), 2 * i + 2);
        }
        for (const QByteArray& event : qAsConst(chamber.events)) {
            QVERIFY2(!event.startsWith("refused"), event.constData());
        }
    }

    void manyRequestsInARowAreAllAnsweredInOrder()
    {
        RunningChamber chamber;
        Client client(chamber);
        QByteArray stream = toTemperatures;
        for (int i = 0; i < 90000; ++i) {
            stream += Wire::readRequest(i % Channels::count);
        }
        client.socket.write(stream);
        QVERIFY(client.gets(90000));
        QCOMPARE(client.received.size(), 90000 * 13);
        for (int i = 0; i < 90000; ++i) {
            QCOMPARE(client.received.at(i * 13 + 1), Channels::unitDigit(i % Channels::count));
        }
    }

    void aClientThatDoesNotReadIsNotReadFromWithoutEnd()
    {
        RunningChamber chamber;
        Client client(chamber);
        client.stopTaking();
        client.socket.write(QByteArray("++eos\n").repeated(3000000)); // three bytes back for six; 9 MB in all
        // Buffers on the way fill up until nothing moves, with most of the stream still here.
        qint64 left = -1;
        QVERIFY(QTest::qWaitFor(
            [&] {
                const qint64 before = left;
                QTest::qWait(200);
                left = client.socket.bytesToWrite();
                return left == before;
            },
            20000));
        QVERIFY2(left > 0, qPrintable(QString::number(left)));
        client.takeWhatComes();
        client.take();
        QVERIFY(client.gets(3000000));
    }

    void whatAClientSentBeforeItLeftIsObeyed()
    {
        RunningChamber chamber;
        {
            Client client(chamber);
            client.socket.write("++addr 3\n++eos 3\n\x1B\x09\n");
            client.socket.disconnectFromHost();
            QTRY_COMPARE(client.socket.state(), QAbstractSocket::UnconnectedState);
        }
        QTRY_COMPARE(chamber.events.value(chamber.events.size() - 1), QByteArray("disconnected"));
        QVERIFY(chamber.events.contains("shutters oxxoxxx"));
    }

    void aFloodBeforeLeavingIsObeyedToTheLastByte()
    {
        RunningChamber chamber;
        constexpr int commands = 1000000; // more than one read buffer holds
        const QByteArray stream = "++addr 3\n++eos 3\n" + Wire::shutters(0x09).repeated(commands);
        Client client(chamber);
        client.socket.write(stream);
        client.socket.disconnectFromHost();
        QVERIFY(QTest::qWaitFor([&] { return chamber.events.contains("disconnected"); }, 60000));
        QCOMPARE(chamber.events.count("shutters oxxoxxx"), commands);
    }

    void aMessageCutShortByTheClientsLeavingIsForgotten()
    {
        RunningChamber chamber;
        {
            Client client(chamber);
            client.socket.write("++addr 3\n++eos 3\n\x1B");
            client.socket.disconnectFromHost();
            QTRY_COMPARE(client.socket.state(), QAbstractSocket::UnconnectedState);
        }
        QTRY_VERIFY(chamber.events.contains("disconnected"));
        Client next(chamber);
        next.socket.write("\n++addr\n");
        QVERIFY(next.gets(1));
        QCOMPARE(next.received, QByteArray("0\r\n"));
    }

    void everyReplyTakesItsLatency()
    {
        RunningChamber chamber(FaultKind::Lost, 0.0, 80);
        Client client(chamber);
        for (const QByteArray& request :
            {QByteArray("++eos\n"), toTemperatures + Wire::readRequest(0), Wire::readRequest(1)}) {
            const int before = client.received.count('\n');
            QElapsedTimer timer;
            timer.start();
            client.socket.write(request);
            QVERIFY(client.gets(before + 1));
            QVERIFY2(timer.elapsed() >= 59, qPrintable(QString::number(timer.elapsed())));
        }
    }

    void theCopyOfADuplicateComesByItself()
    {
        RunningChamber chamber(FaultKind::Duplicate, 1.0);
        Client client(chamber);
        QList<int> portions;
        connect(
            &client.socket, &QTcpSocket::readyRead, this, [&] { portions.append(client.received.size()); });
        client.socket.write(toTemperatures + Wire::readRequest(0));
        QVERIFY(client.gets(2));
        QCOMPARE(portions, QList<int>({13, 26}));
    }

    void aLateReplyIsLateAndKeepsBackWhatFollows()
    {
        RunningChamber chamber(FaultKind::Late, 1.0);
        Client client(chamber);
        QElapsedTimer timer;
        timer.start();
        client.socket.write(toTemperatures + Wire::readRequest(0) + "++eos\n");
        QVERIFY(client.gets(2));
        QVERIFY(timer.elapsed() >= 190);
        QVERIFY(client.received.startsWith("01M"));
        QVERIFY(client.received.endsWith("\r\n0\r\n"));
        QVERIFY(chamber.events.contains("fault late 01"));
    }

    void mergedRepliesAreInOnePiece()
    {
        RunningChamber chamber(FaultKind::Merged, 1.0);
        Client client(chamber);
        client.socket.write(toTemperatures + Wire::readRequest(0));
        QTRY_VERIFY(chamber.events.contains("fault merged 01"));
        QCOMPARE(client.received, QByteArray());
        client.socket.write("++eos\n");
        QVERIFY(client.gets(1));
        QCOMPARE(client.received.size(), 13 + 3);
    }

    void aCutIsSeenByTheClientAndAnotherMayCome()
    {
        RunningChamber chamber(FaultKind::Cut, 1.0);
        Client client(chamber);
        client.socket.write(toTemperatures + Wire::readRequest(3) + Wire::readRequest(4));
        QTRY_COMPARE(client.socket.state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(client.received, QByteArray());
        QCOMPARE(chamber.events.mid(1), QList<QByteArray>({"connected", "fault cut 04", "disconnected"}));
        Client next(chamber);
        next.socket.write("++eos\n");
        QVERIFY(next.gets(1));
    }

    void halfOpenTakesAndAnswersNothingMoreUntilTheNextClient()
    {
        RunningChamber chamber(FaultKind::HalfOpen, 1.0);
        {
            Client client(chamber);
            client.socket.write(
                toTemperatures + Wire::readRequest(3) + "++addr 3\n++eos 3\n\x1B\x09\n++eos\n");
            QTRY_VERIFY(chamber.events.contains("fault half-open 04"));
            client.socket.write("++eos\n");
            QTRY_COMPARE(client.socket.bytesToWrite(), 0);
            QTest::qWait(50);
            QCOMPARE(client.socket.state(), QAbstractSocket::ConnectedState);
            QCOMPARE(client.received, QByteArray());
        }
        QTRY_VERIFY(chamber.events.contains("disconnected"));
        QVERIFY(!chamber.events.contains("shutters oxxoxxx"));
        Client next(chamber);
        next.socket.write("++eos\n");
        QVERIFY(next.gets(1));
    }

    void aSecondClientIsShownOutAndTheFirstGoesOn()
    {
        RunningChamber chamber;
        Client first(chamber);
        Client second(chamber);
        QTRY_COMPARE(second.socket.state(), QAbstractSocket::UnconnectedState);
        second.take();
        QCOMPARE(second.received, QByteArray("adapter in use\r\n"));
        QVERIFY(chamber.events.last().startsWith("refused 127.0.0.1:"));
        first.socket.write("++eos\n");
        QVERIFY(first.gets(1));
    }
};

NELVO_TEST_MAIN(ChamberServerTest)
#include "chamberserver.moc"
