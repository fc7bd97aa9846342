#include "system/process.h"

#include <QElapsedTimer>
#include <QProcessEnvironment>

namespace {

constexpr int patienceMs = 20000;

} // namespace

Process::Process(const QString& program, const QStringList& arguments, const QStringList& environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : environment) {
        variables.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    }
    process.setProcessEnvironment(variables);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(patienceMs)) {
        qFatal("cannot start %s", qPrintable(program));
    }
}

Process::~Process()
{
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(patienceMs);
    }
}

bool Process::waitFor(const std::function<bool(const QString&)>& condition)
{
    QElapsedTimer timer;
    timer.start();
    read();
    while (!condition(collected)) {
        if (timer.elapsed() > patienceMs) {
            qInfo("%s", qPrintable(collected.right(2000)));
            return false;
        }
        process.waitForReadyRead(50);
        read();
    }
    return true;
}

bool Process::waitForText(const QString& text, int times)
{
    return waitFor([&](const QString& all) { return all.count(text) >= times; });
}

void Process::terminate()
{
    process.terminate();
    process.waitForFinished(patienceMs);
    read();
}

bool Process::isRunning()
{
    process.waitForFinished(0);
    return process.state() == QProcess::Running;
}

int Process::exitCode()
{
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(patienceMs)) {
        return -1;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QString Process::output()
{
    read();
    return collected;
}

void Process::forget()
{
    read();
    collected.clear();
}

void Process::read()
{
    // Takes in what has arrived; without an event loop nothing else would.
    process.waitForReadyRead(0);
    collected += QString::fromUtf8(process.readAll());
}
