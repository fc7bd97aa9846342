#include "simulator/chamberserver.h"
#include "simulator/options.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <csignal>
#include <cstdio>

namespace {

constexpr int statusCannotListen = 1;
constexpr int statusCannotRecord = 1;
constexpr int statusBadOption = 2;
constexpr int stopPollMs = 50;

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

    const Chamber::Options& options = commandLine.options;
    bool isQuiet = false; // where it listens is told in any case
    Chamber::ChamberServer server(options, [&](const QByteArray& event) {
        if (!isQuiet) {
            printEvent(sinceStart.elapsed(), event);
        }
    });
    if (!server.listen()) {
        complain(QStringLiteral("cannot listen on %1 port %2: %3")
                     .arg(options.listenAddress.toString())
                     .arg(options.port)
                     .arg(server.errorString()));
        return statusCannotListen;
    }
    isQuiet = options.quiet;
    QFile record(options.recordFile);
    if (!options.recordFile.isEmpty() && !record.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        complain(QStringLiteral("cannot write %1: %2").arg(options.recordFile, record.errorString()));
        return statusCannotRecord;
    }
    QObject::connect(&server, &Chamber::ChamberServer::received, &record, [&record](const QByteArray& bytes) {
        if (record.isOpen()) {
            record.write(bytes);
        }
    });
    if (options.once) {
        QObject::connect(&server, &Chamber::ChamberServer::clientLeft, &application, &QCoreApplication::quit);
    }

    // A signal handler may do next to nothing, so it leaves a note that is looked at now and then.
    QTimer stopPoll;
    QObject::connect(&stopPoll, &QTimer::timeout, &application, [] {
        if (stopAsked != 0) {
            QCoreApplication::quit();
        }
    });
    stopPoll.start(stopPollMs);
    return QCoreApplication::exec();
}
