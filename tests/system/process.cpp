#include "system/process.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcessEnvironment>

namespace {

constexpr int patienceMs = 20000;

QString tested(const QString& built)
{
    const QString folder = qEnvironmentVariable("NELVO_TEST_PROGRAMS");
    return folder.isEmpty() ? built : QDir(folder).filePath(QFileInfo(built).fileName());
}

// Programs write in the encoding of their system.
QString textOf(const QByteArray& output)
{
#ifdef Q_OS_WIN
    return QString::fromLocal8Bit(output).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
#else
    return QString::fromUtf8(output);
#endif
}

} // namespace

QString chambersimProgram()
{
    return tested(QStringLiteral(CHAMBERSIM_PROGRAM));
}

QString growthcheckProgram()
{
    return tested(QStringLiteral(GROWTHCHECK_PROGRAM));
}

QString nelvoProgram()
{
    return tested(QStringLiteral(NELVO_PROGRAM));
}

QString stationPlatform()
{
#ifdef Q_OS_WIN
    return QStringLiteral("QT_QPA_PLATFORM=windows");
#else
    return QStringLiteral("QT_QPA_PLATFORM=offscreen");
#endif
}

Process::Process(const QString& program, const QStringList& arguments, const QStringList& environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    // Else a program with a window keeps its debug lines to the debugger on Windows.
    variables.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
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

void Process::kill()
{
    process.kill();
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
    const bool hasEnded = process.state() == QProcess::NotRunning || process.waitForFinished(patienceMs);
    return hasEnded && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
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
    collected += textOf(process.readAll());
}
