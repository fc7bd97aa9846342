#include "support/peer.h"

#include "support/benchapp.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <cstring>

namespace {

constexpr char peerSwitch[] = "--peer";
constexpr int patienceMs = 5000;
constexpr int longestWaitForClientMs = 30000;

} // namespace

Peer::Peer(int delayMs)
{
    const QString address = ownAddress();
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
        {QLatin1String(peerSwitch), address, QString::number(delayMs)});
    if (!process.waitForReadyRead(patienceMs) || process.readLine() != "listening\n") {
        fail("the replying peer did not start");
    }
    qputenv("NELVO_ADAPTER", address.toLatin1());
}

Peer::~Peer()
{
    process.kill();
    process.waitForFinished(patienceMs);
}

std::vector<WireEvent> Peer::finish()
{
    if (!process.waitForFinished(patienceMs) || process.exitCode() != 0) {
        fail("the replying peer did not end well");
    }
    std::vector<WireEvent> events;
    while (process.canReadLine()) {
        const QList<QByteArray> words = process.readLine().simplified().split(' ');
        if (words.size() != 3) {
            fail("the replying peer's report cannot be read");
        }
        events.push_back(
            {static_cast<WireEvent::Kind>(words[0].toInt()), words[1].toLongLong(), words[2].toInt()});
    }
    return events;
}

QString ownAddress()
{
    const qint64 pid = QCoreApplication::applicationPid();
    return QStringLiteral("127.%1.%2.%3")
        .arg(80 + ((pid >> 16) & 0x3F))
        .arg((pid >> 8) & 0xFF)
        .arg(pid & 0xFF);
}

bool isPeer(int argc, char* argv[])
{
    return argc == 4 && std::strcmp(argv[1], peerSwitch) == 0;
}

int peerMain(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    ReplyingAdapter adapter(arguments[3].toInt());
    if (!adapter.listen(arguments[2])) {
        return 1;
    }
    std::puts("listening");
    std::fflush(stdout);

    QObject::connect(&adapter, &ReplyingAdapter::clientLeft, &application, &QCoreApplication::quit);
    QTimer::singleShot(longestWaitForClientMs, &application, [&adapter] {
        if (!adapter.hasClient()) {
            QCoreApplication::exit(1);
        }
    });
    const int result = QCoreApplication::exec();
    for (const WireEvent& event : adapter.events()) {
        std::printf("%d %lld %d\n", event.kind, static_cast<long long>(event.ns), event.value);
    }
    return result;
}
