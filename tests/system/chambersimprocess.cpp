// The program chambersim itself, over the real socket.

#include "support/files.h"
#include "support/testmain.h"
#include "system/process.h"

#include <QHostAddress>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>

using namespace TestText;

namespace {

constexpr int patienceMs = 10000;

// A station that connected and left.
const QByteArray recording = "2026-11-21T09:41:07.123+09:00\t0.000\tstart\n"
                             "2026-11-21T09:41:07.133+09:00\t0.010\tsent\tbytes=++eoi\\x0a\n"
                             "2026-11-21T09:41:07.143+09:00\t0.020\treceived\tbytes=1\\x0d\\x0a\n"
                             "2026-11-21T09:41:07.153+09:00\t0.030\tsent\tbytes=++auto 1\\x0a\n"
                             "2026-11-21T09:41:08.123+09:00\t1.000\texit\n";

// The real program, started on a free port unless the options say otherwise.
class Chambersim
{
public:
    explicit Chambersim(const QStringList& options)
    {
        process.start(chambersimProgram(), options);
        if (!process.waitForStarted(patienceMs)) {
            qFatal("cannot start chambersim");
        }
    }

    ~Chambersim()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(patienceMs);
        }
    }

    bool ends() { return process.state() == QProcess::NotRunning || process.waitForFinished(patienceMs); }

    /// The next event without its time; the time is checked. Empty when none comes.
    QByteArray event()
    {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(patienceMs)) {
                return {};
            }
        }
        const QString line = QString::fromUtf8(process.readLine()).replace("\r\n"_s, "\n"_s);
        static const QRegularExpression form("^(\\d+\\.\\d{3}) ([^\\n]+)\\n$"_s);
        const QRegularExpressionMatch match = form.match(line);
        const double seconds = match.captured(1).toDouble();
        if (!match.hasMatch() || seconds < lastSeconds) {
            return "not an event: " + line.toUtf8();
        }
        lastSeconds = seconds;
        return match.captured(2).toUtf8();
    }

    /// Awaits the event that tells the port.
    quint16 port() { return event().mid(int(qstrlen("listening 127.0.0.1:"))).toUShort(); }

    QProcess process;

private:
    double lastSeconds = 0.0;
};

QStringList freePort(const QStringList& more = {})
{
    return QStringList({"--port"_s, "0"_s}) + more;
}

void connectTo(QTcpSocket& socket, quint16 port)
{
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    QVERIFY(socket.waitForConnected(patienceMs));
}

QByteArray lineFrom(QTcpSocket& socket)
{
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(patienceMs)) {
            return "nothing";
        }
    }
    return socket.readLine();
}

} // namespace

class ChambersimProcessTest : public QObject
{
    Q_OBJECT

private slots:
    void aSessionOverTheRealSocketIsLoggedEventByEvent()
    {
        Chambersim chambersim(freePort());
        const quint16 port = chambersim.port();
        QVERIFY(port != 0);
        QTcpSocket socket;
        connectTo(socket, port);
        QCOMPARE(chambersim.event(), QByteArray("connected"));

        socket.write(
            "++eoi\n\n\n++auto 1\n++addr 3\n++eos 3\n++eoi\n\x1B\x09\n\x1B\n\n\x1B\x1B\n\x1B+\n\x1B\r\n");
        QCOMPARE(lineFrom(socket), QByteArray("1\r\n"));
        QCOMPARE(lineFrom(socket), QByteArray("1\r\n"));
        for (const char* letters : {"oxxoxxx", "xoxoxxx", "ooxooxx", "ooxoxox", "oxooxxx"}) {
            QCOMPARE(chambersim.event(), QByteArray("shutters ") + letters);
        }

        socket.write("++addr 1\n++eos 0\n++eoi 1\n\x04"
                     "01\x02S10120.0\x03{\n");
        QCOMPARE(lineFrom(socket), QByteArray("OK\r\n"));
        QCOMPARE(chambersim.event(), QByteArray("setpoint 01 120.0"));
        socket.write("\x04"
                     "01\x02S10130.0\x03y\n");
        QCOMPARE(lineFrom(socket), QByteArray("ER\r\n"));
        QCOMPARE(chambersim.event(), QByteArray("rejected 01 bad check"));
        socket.write("\x04"
                     "09M1\x05\n");
        const QByteArray reading = lineFrom(socket);
        QCOMPARE(reading.size(), 13);
        QVERIFY(reading.startsWith("09M"));
        QVERIFY(qAbs(reading.mid(3, 7).toDouble() - 25.0) < 0.4);
        socket.write("++frob\n");
        QVERIFY(socket.waitForBytesWritten(patienceMs));
        QCOMPARE(chambersim.event(), QByteArray("ignored ++frob"));

        socket.disconnectFromHost();
        QCOMPARE(chambersim.event(), QByteArray("disconnected"));
    }

    void theTimeScaleSpeedsTheCellsUp()
    {
        Chambersim chambersim(freePort({"--time-scale"_s, "1e9"_s}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        socket.write("++auto 1\n++addr 1\n\x04"
                     "01\x02S10120.0\x03{\n");
        QCOMPARE(lineFrom(socket), QByteArray("OK\r\n"));
        socket.write("\x04"
                     "01M1\x05\n");
        const QByteArray first = lineFrom(socket);
        QVERIFY2(qAbs(first.mid(3, 7).toDouble() - 120.0) < 0.4, first);
    }

    void twoClientsInARowAndEndOnTerminate()
    {
        Chambersim chambersim(freePort());
        const quint16 port = chambersim.port();
        for (int i = 0; i < 2; ++i) {
            QTcpSocket socket;
            connectTo(socket, port);
            QCOMPARE(chambersim.event(), QByteArray("connected"));
            socket.write("++addr\n++addr 5\n++addr\n");
            QCOMPARE(lineFrom(socket), QByteArray("0\r\n"));
            QCOMPARE(lineFrom(socket), QByteArray("5\r\n"));
            socket.disconnectFromHost();
            QCOMPARE(chambersim.event(), QByteArray("disconnected"));
        }
#ifdef Q_OS_UNIX
        chambersim.process.terminate();
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(chambersim.process.exitCode(), 0);
#endif
    }

    void terminateEndsItWhileAClientIsThere()
    {
#ifdef Q_OS_UNIX
        Chambersim chambersim(freePort());
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        QCOMPARE(chambersim.event(), QByteArray("connected"));
        chambersim.process.terminate();
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(chambersim.process.exitCode(), 0);
        QCOMPARE(chambersim.event(), QByteArray("disconnected"));
#endif
    }

    void onceEndsItWhenTheClientLeaves()
    {
        Chambersim chambersim(freePort({"--once"_s}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        QCOMPARE(chambersim.event(), QByteArray("connected"));
        QCOMPARE(chambersim.process.state(), QProcess::Running);
        socket.disconnectFromHost();
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitCode(), 0);
        QCOMPARE(chambersim.event(), QByteArray("disconnected"));
    }

    void quietTellsOnlyWhereItListens()
    {
        Chambersim chambersim(freePort({"--quiet"_s, "--once"_s}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        socket.write("++frob\n++eos\n");
        QCOMPARE(lineFrom(socket), QByteArray("0\r\n"));
        socket.disconnectFromHost();
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.readAllStandardOutput(), QByteArray());
    }

    void faultsAreLoggedAndHappen()
    {
        Chambersim chambersim(freePort({"--fault"_s, "er=1"_s}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        QCOMPARE(chambersim.event(), QByteArray("connected"));
        socket.write("++auto 1\n++addr 1\n\x04"
                     "07M1\x05\n");
        QCOMPARE(lineFrom(socket), QByteArray("ER\r\n"));
        QCOMPARE(chambersim.event(), QByteArray("fault er 07"));
    }

    void whatComesIsRecordedByteForByte()
    {
        QByteArray sent("++eoi\n\x1B\r\n\0\xFF\n", 12);
        {
            Chambersim chambersim(freePort({"--record"_s, "bytes.bin"_s, "--once"_s}));
            QTcpSocket socket;
            connectTo(socket, chambersim.port());
            socket.write(sent);
            QCOMPARE(lineFrom(socket), "1\r\n");
            socket.disconnectFromHost();
            QVERIFY(chambersim.ends());
        }
        QFile record("bytes.bin"_s);
        QVERIFY(record.open(QIODevice::ReadOnly));
        QCOMPARE(record.readAll(), sent);
    }

    void aRecordThatCannotBeWrittenIsOneLineAndStatus1()
    {
        Chambersim chambersim(freePort({"--record"_s, "missing/bytes.bin"_s}));
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitCode(), 1);
        QVERIFY(chambersim.process.readAllStandardError().startsWith(
            "chambersim: cannot write missing/bytes.bin"));
    }

    void aBadOptionIsOneLineAndStatus2()
    {
        for (const QStringList& options : {QStringList("--frob"_s), QStringList({"--fault"_s, "late=2"_s})}) {
            Chambersim chambersim(options);
            QVERIFY(chambersim.ends());
            QCOMPARE(chambersim.process.exitCode(), 2);
            const QByteArray complaint = chambersim.process.readAllStandardError();
            QVERIFY2(complaint.startsWith("chambersim: "), complaint);
            QCOMPARE(complaint.count('\n'), 1);
            QCOMPARE(chambersim.process.readAllStandardOutput(), QByteArray());
        }
    }

    void aRecordingIsPlayedToItsEnd()
    {
        putFile(wireFile, recording);
        Chambersim chambersim(freePort({"--replay"_s, wireFile}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        QCOMPARE(chambersim.event(), QByteArray("connected"));
        socket.write("++eoi\n");
        QCOMPARE(lineFrom(socket), QByteArray("1\r\n"));
        socket.write("++auto 1\n");
        QVERIFY(socket.waitForBytesWritten(patienceMs));
        QCOMPARE(chambersim.event(), QByteArray("replayed to the end"));
        socket.disconnectFromHost();
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitCode(), 0);
    }

    void otherBytesThanRecordedAreStatus3()
    {
        putFile(wireFile, recording);
        Chambersim chambersim(freePort({"--replay"_s, wireFile}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        QCOMPARE(chambersim.event(), QByteArray("connected"));
        socket.write("++eoi\n++auto 0\n");
        QVERIFY(socket.waitForBytesWritten(patienceMs));
        QCOMPARE(chambersim.event(), QByteArray("differs at byte 13 behind \"++eoi<0A>++auto \""));
        QCOMPARE(chambersim.event(), QByteArray("the station sent \"0<0A>\""));
        QCOMPARE(chambersim.event(), QByteArray("the recording has \"1<0A>\""));
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitCode(), 3);
    }

    void leavingHalfWayIsStatus3()
    {
        putFile(wireFile, recording);
        Chambersim chambersim(freePort({"--replay"_s, wireFile}));
        QTcpSocket socket;
        connectTo(socket, chambersim.port());
        QCOMPARE(chambersim.event(), QByteArray("connected"));
        socket.write("++eoi\n");
        QCOMPARE(lineFrom(socket), QByteArray("1\r\n"));
        socket.disconnectFromHost();
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.event(), QByteArray("disconnected"));
        QCOMPARE(chambersim.event(), QByteArray("left at byte 6 of 15"));
        QCOMPARE(chambersim.process.exitCode(), 3);
    }

    void aRecordingThatCannotBePlayedIsOneLineAndStatus2_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no bytes") << QByteArray("2026-11-21T09:41:07.123+09:00\t0.000\tstart\n");
        QTest::newRow("no start") << recording.mid(recording.indexOf('\n') + 1);
    }

    void aRecordingThatCannotBePlayedIsOneLineAndStatus2()
    {
        QFETCH(QByteArray, text);
        putFile(wireFile, text);
        Chambersim chambersim(freePort({"--replay"_s, wireFile}));
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitCode(), 2);
        const QByteArray complaint = chambersim.process.readAllStandardError();
        QVERIFY2(complaint.startsWith("chambersim: NelvoWire.log "), complaint);
        QCOMPARE(complaint.count('\n'), 1);
    }

    void aPortInUseIsOneLineAndStatus1()
    {
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress(QHostAddress::LocalHost)));
        Chambersim chambersim({"--port"_s, QString::number(other.serverPort())});
        QVERIFY(chambersim.ends());
        QCOMPARE(chambersim.process.exitCode(), 1);
        const QByteArray complaint = chambersim.process.readAllStandardError();
        QVERIFY2(complaint.startsWith("chambersim: cannot listen on 127.0.0.1 port "), complaint);
        QCOMPARE(complaint.count('\n'), 1);
    }

    void helpAndVersionGoToStandardOutput()
    {
        for (const char* option : {"--help", "--version"}) {
            Chambersim chambersim({QString::fromLatin1(option)});
            QVERIFY(chambersim.ends());
            QCOMPARE(chambersim.process.exitCode(), 0);
            QVERIFY(chambersim.process.readAllStandardOutput().contains("chambersim"));
        }
    }
};

NELVO_TEST_MAIN(ChambersimProcessTest)
#include "chambersimprocess.moc"
