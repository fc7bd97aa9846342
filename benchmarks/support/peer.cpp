#include "benchmarks/support/peer.h"

#include "benchmarks/support/figures.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace {

constexpr char peerSwitch[] = "--peer";
constexpr int patienceMs = 5000;
constexpr int longestWaitForClientMs = 30000;

} // namespace

Peer::Peer(int delayMs)
{
    const QString address = ownLoopbackAddress();
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
        {QLatin1String(peerSwitch), address, QString::number(delayMs)});
    if (!process.waitForReadyRead(patienceMs) || process.readLine() != "listening\n") {
        fail("the answering peer did not start");
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
        fail("the answering peer did not end well");
    }
    std::vector<WireEvent> events;
    while (process.canReadLine()) {
        const QList<QByteArray> words = process.readLine().simplified().split(' ');
        if (words.size() != 3) {
            fail("the answering peer's report cannot be read");
        }
        events.push_back(
            {static_cast<WireEvent::Kind>(words[0].toInt()), words[1].toLongLong(), words[2].toInt()});
    }
    return events;
}

std::vector<WireEvent> only(WireEvent::Kind kind, const std::vector<WireEvent>& events)
{
    std::vector<WireEvent> chosen;
    std::copy_if(events.begin(), events.end(), std::back_inserter(chosen),
        [kind](const WireEvent& event) { return event.kind == kind; });
    return chosen;
}

bool isPeer(int argc, char* argv[])
{
    return argc == 4 && std::strcmp(argv[1], peerSwitch) == 0;
}

int peerMain(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const AnsweringAdapter adapter(arguments[3].toInt(), arguments[2]);
    std::puts("listening");
    std::fflush(stdout);

    QObject::connect(&adapter, &AnsweringAdapter::clientLeft, &application, &QCoreApplication::quit);
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
