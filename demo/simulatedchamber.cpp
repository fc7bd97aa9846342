#include "simulatedchamber.h"

#include "hands.h"

#include <cstdio>

SimulatedChamber::~SimulatedChamber()
{
    stop();
}

bool SimulatedChamber::start(const QString& program, const QString& address)
{
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, [this] { read(); });
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(
        program, {QStringLiteral("--listen"), address, QStringLiteral("--seed"), QStringLiteral("1")});
    const bool ready = Hands::waitUntil(
        [this] { return count(QStringLiteral("listening")) > 0 || process.state() == QProcess::NotRunning; },
        5000);
    if (!ready || process.state() == QProcess::NotRunning) {
        reason = events.isEmpty() ? process.errorString() : events.last();
        return false;
    }
    return true;
}

void SimulatedChamber::stop()
{
    if (process.state() == QProcess::NotRunning) {
        return;
    }
    process.terminate();
    if (!process.waitForFinished(3000)) {
        process.kill();
        process.waitForFinished(3000);
    }
}

int SimulatedChamber::count(const QString& event) const
{
    int found = 0;
    for (const QString& seen : events) {
        if (seen.startsWith(event)) {
            ++found;
        }
    }
    return found;
}

QString SimulatedChamber::last(const QString& beginning) const
{
    for (auto seen = events.crbegin(); seen != events.crend(); ++seen) {
        if (seen->startsWith(beginning)) {
            return *seen;
        }
    }
    return {};
}

void SimulatedChamber::read()
{
    unfinished += process.readAllStandardOutput();
    for (int end = unfinished.indexOf('\n'); end >= 0; end = unfinished.indexOf('\n')) {
        const QString line = QString::fromUtf8(unfinished.left(end));
        unfinished.remove(0, end + 1);
        std::printf("   chamber: %s\n", qPrintable(line));
        std::fflush(stdout);
        events.append(line.section(QLatin1Char(' '), 1));
    }
}
