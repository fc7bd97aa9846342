// A recorded session, played to a client that does the same again, or does not.

#include "simulator/recording.h"
#include "simulator/replayserver.h"

#include "journal/journalline.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QElapsedTimer>
#include <QTcpSocket>

using namespace Chamber;
using namespace TestText;

namespace {

QByteArray line(double sec, const char* kind, const QString& bytes)
{
    JournalLine event;
    event.elapsedSec = sec;
    event.kind = QLatin1String(kind);
    if (!bytes.isNull()) {
        event.fields = {{"bytes", bytes}};
    }
    return journalText(event);
}

const QByteArray session = line(0.0, "start", QString()) + line(0.1, "sent", "++eoi\n"_s)
    + line(0.2, "received", "1\r\n"_s) + line(0.2, "shutters", QString()) + line(1.2, "sent", "\x1B\x05\n"_s)
    + line(1.3, "sent", "read\n"_s) + line(1.35, "received", QString::fromLatin1("0\xFF"))
    + line(1.4, "received", "1\r\n"_s) + line(2.0, "exit", QString());

} // namespace

class ReplayTest : public QObject
{
    Q_OBJECT

    // A recording with the journal `text`, played to a socket.
    void play(const QByteArray& text, double timeScale = 1000.0)
    {
        putFile("journal"_s, text);
        QString error;
        const auto recording = readRecording("journal"_s, error);
        QVERIFY2(recording, qPrintable(error));
        Options options;
        options.port = 0;
        options.timeScale = timeScale;
        events.clear();
        server = std::make_unique<ReplayServer>(
            *recording, options, [this](const QByteArray& event) { events.append(event); });
        QVERIFY(server->listen());
        socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress(QHostAddress::LocalHost), server->port());
        QTRY_COMPARE(socket->state(), QAbstractSocket::ConnectedState);
    }

    QList<QByteArray> events;
    std::unique_ptr<ReplayServer> server;
    std::unique_ptr<QTcpSocket> socket;

private slots:
    void cleanup()
    {
        socket.reset();
        server.reset();
    }

    void aRecordingIsTheLastRunWithBytes()
    {
        putFile(
            "journal"_s, line(0.0, "start", QString()) + line(0.5, "sent", "old"_s) + session + "half a li");
        QString error;
        const auto recording = readRecording("journal"_s, error);
        QVERIFY(recording);
        QCOMPARE(recording->commands, QByteArray("++eoi\n\x1B\x05\nread\n"));
        QCOMPARE(recording->replies.size(), 3);
        QCOMPARE(recording->replies[0].after, 6);
        QCOMPARE(recording->replies[0].bytes, QByteArray("1\r\n"));
        QVERIFY(qAbs(recording->replies[0].delaySec - 0.1) < 1e-9);
        QCOMPARE(recording->replies[1].after, 14);
        QCOMPARE(recording->replies[1].bytes, QByteArray("0\xFF"));
        QVERIFY(qAbs(recording->replies[2].delaySec - 0.05) < 1e-9);
    }

    void whatIsNoRecordingIsRefused()
    {
        QString error;
        QVERIFY(!readRecording("missing"_s, error));
        QVERIFY(error.startsWith("cannot read missing: "_s));
        putFile("journal"_s, line(0.0, "start", QString()));
        QVERIFY(!readRecording("journal"_s, error));
        QVERIFY(error.contains("NELVO_JOURNAL=--wire"_s));
    }

    void whatIsLeftOfARunIsRefused_data()
    {
        const QByteArray start = line(0.0, "start", QString());
        const QByteArray bytes = line(0.1, "sent", "++eoi\n"_s) + line(0.2, "received", "1\r\n"_s);
        const QByteArray loss = line(0.3, "lost-lines", QString());
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("why");
        QTest::newRow("no start") << bytes << "no longer has the beginning"_s;
        QTest::newRow("lines lost before the first byte") << start + loss + bytes << "had no room"_s;
        QTest::newRow("lines lost in the middle") << start + bytes + loss + bytes << "had no room"_s;
        // The loss may be the start itself: then the bytes of two runs follow each other.
        QTest::newRow("the start lost") << session + loss + bytes << "had no room"_s;
        QTest::newRow("lines lost in an earlier run") << start + bytes + loss + session << QString();
        QTest::newRow("lines lost in a later run without bytes") << session + start + loss << QString();
    }

    void whatIsLeftOfARunIsRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, why);
        putFile("journal"_s, text);
        QString error;
        QCOMPARE(readRecording("journal"_s, error).has_value(), why.isEmpty());
        QVERIFY2(error.contains(why), qPrintable(error));
        QCOMPARE(error.isEmpty(), why.isEmpty());
    }

    void theSameCommandsGetTheSameReplies()
    {
        play(session);
        socket->write("++e");
        socket->flush();
        QTRY_COMPARE(server->matched(), 3);
        QCOMPARE(socket->bytesAvailable(), 0);
        socket->write("oi\n");
        QTRY_COMPARE(socket->bytesAvailable(), 3);
        QCOMPARE(socket->readAll(), QByteArray("1\r\n"));
        socket->write("\x1B\x05\nread\n");
        QTRY_COMPARE(socket->bytesAvailable(), 5);
        QCOMPARE(socket->readAll(),
            QByteArray("0\xFF"
                       "1\r\n"));
        QTRY_VERIFY(server->isOver());
        QCOMPARE(events.last(), QByteArray("replayed to the end"));
        QSignalSpy left(server.get(), &ReplayServer::clientLeft);
        socket->disconnectFromHost();
        QTRY_COMPARE(left.count(), 1);
    }

    void repliesTakeAsLongAsTheyTook()
    {
        play(session, 1.0);
        QElapsedTimer timer;
        timer.start();
        socket->write("++eoi\n");
        QTRY_COMPARE(socket->bytesAvailable(), 3);
        QVERIFY2(timer.elapsed() >= 99, qPrintable(QString::number(timer.elapsed())));
    }

    void theFirstCommandThatDiffersEndsIt_data()
    {
        QTest::addColumn<QByteArray>("sent");
        QTest::addColumn<QByteArray>("where");
        QTest::addColumn<QByteArray>("came");
        QTest::newRow("at once") << QByteArray("++auto 1\n") << QByteArray("byte 2 behind \"++\"")
                                 << QByteArray("auto 1<0A>");
        QTest::newRow("another mask")
            << QByteArray("++eoi\n\x1B\x04\n") << QByteArray("byte 7 behind \"++eoi<0A><1B>\"")
            << QByteArray("<04><0A>");
        QTest::newRow("one more") << QByteArray("++eoi\n\x1B\x05\nread\nread\n")
                                  << QByteArray("byte 14 behind \"++eoi<0A><1B><05><0A>read<0A>\"")
                                  << QByteArray("read<0A>");
    }

    void theFirstCommandThatDiffersEndsIt()
    {
        QFETCH(QByteArray, sent);
        QFETCH(QByteArray, where);
        QFETCH(QByteArray, came);
        play(session);
        QSignalSpy differed(server.get(), &ReplayServer::differed);
        socket->write(sent);
        QTRY_COMPARE(differed.count(), 1);
        const int told = events.indexOf("differs at " + where);
        QVERIFY2(told >= 0, events.join('|').constData());
        QCOMPARE(events[told + 1], "the station sent \"" + came + '"');
        QVERIFY(events[told + 2].startsWith("the recording has \""));
    }
};

NELVO_TEST_MAIN(ReplayTest)
#include "replay.moc"
