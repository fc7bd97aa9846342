#include "simulator/chamberserver.h"
#include "simulator/options.h"
#include "simulator/replayserver.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <functional>

namespace {

constexpr int statusCannotListen = 1;
constexpr int statusCannotRecord = 1;
constexpr int statusBadOption = 2;
constexpr int statusDiffers = 3;
constexpr int stopPollMs = 50;

using Log = std::function<void(const QByteArray& event)>;

volatile std::sig_atomic_t stopAsked = 0;

void askToStop(int /*signal*/)
{
    stopAsked = 1;
}

void complain(const QString& text)
{
    std::fprintf(stderr, "chambersim: %s\n", text.toLocal8Bit().constData());
}

/// One line, at once: whoever reads along sees it when it happens.
void printEvent(qint64 elapsedMs, const QByteArray& event)
{
    const QByteArray line
        = QByteArray::number(static_cast<double>(elapsedMs) / 1000.0, 'f', 3) + ' ' + event + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

// A signal handler may do next to nothing, so it leaves a note that is looked at now and then.
void endWhenAsked(QTimer& poll)
{
    QObject::connect(&poll, &QTimer::timeout, &poll, [] {
        if (stopAsked != 0) {
            QCoreApplication::quit();
        }
    });
    poll.start(stopPollMs);
}

int cannotListen(const Chamber::Options& options, const QString& why)
{
    complain(QStringLiteral("cannot listen on %1 port %2: %3")
                 .arg(options.listenAddress.toString())
                 .arg(options.port)
                 .arg(why));
    return statusCannotListen;
}

int playChamber(const Chamber::Options& options, const Log& log)
{
    Chamber::ChamberServer server(options, log);
    QFile record(options.recordFile);
    if (!options.recordFile.isEmpty()) {
        if (!record.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            complain(QStringLiteral("cannot write %1: %2").arg(options.recordFile, record.errorString()));
            return statusCannotRecord;
        }
        QObject::connect(&server, &Chamber::ChamberServer::received, &record,
            [&record](const QByteArray& bytes) { record.write(bytes); });
    }
    if (!server.listen()) {
        return cannotListen(options, server.errorString());
    }
    if (options.once) {
        QObject::connect(&server, &Chamber::ChamberServer::clientLeft, qApp, &QCoreApplication::quit);
    }
    return QCoreApplication::exec();
}

int playRecording(const Chamber::Options& options, const Log& log)
{
    QString error;
    const std::optional<Chamber::Recording> recording = Chamber::readRecording(options.replayFile, error);
    if (!recording) {
        complain(error);
        return statusBadOption;
    }
    Chamber::ReplayServer server(*recording, options, log);
    if (!server.listen()) {
        return cannotListen(options, server.errorString());
    }
    QObject::connect(
        &server, &Chamber::ReplayServer::differed, qApp, [] { QCoreApplication::exit(statusDiffers); });
    QObject::connect(&server, &Chamber::ReplayServer::clientLeft, qApp,
        [&server] { QCoreApplication::exit(server.isOver() ? 0 : statusDiffers); });
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("chambersim"));

    const Chamber::CommandLine commandLine
        = Chamber::readCommandLine(QCoreApplication::arguments(), QStringLiteral(CHAMBERSIM_VERSION));
    if (!commandLine.error.isEmpty()) {
        complain(commandLine.error);
        return statusBadOption;
    }
    if (!commandLine.text.isEmpty()) {
        std::fputs(commandLine.text.toLocal8Bit().constData(), stdout);
        return 0;
    }

    std::signal(SIGTERM, &askToStop);
    std::signal(SIGINT, &askToStop);
    QTimer stopPoll;
    endWhenAsked(stopPoll);

    const Chamber::Options& options = commandLine.options;
    const Log log = [&](const QByteArray& event) {
        if (!options.quiet || event.startsWith("listening ")) {
            printEvent(sinceStart.elapsed(), event);
        }
    };
    return options.replayFile.isEmpty() ? playChamber(options, log) : playRecording(options, log);
}
