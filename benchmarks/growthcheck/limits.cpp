// What growthcheck costs: no program file, however hostile, may take it a second or 64 MB, and a hundred
// ordinary programs no second together.

#include "benchmarks/growthcheck/hostileprograms.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

namespace {

constexpr int ordinaryPrograms = 100;

struct Cost
{
    double seconds = 0.0;
    double megabytes = 0.0; // the most it held; 0 where the system does not tell
};

void put(const QString& name, const QByteArray& text)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        fail("a program file cannot be written");
    }
}

// Its peak so far, as Linux tells it of a process that runs.
double peakMegabytes(qint64 processId)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(processId));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    const QByteArray text = status.readAll();
    const int at = text.indexOf("VmHWM:");
    constexpr int lineLength = 40;
    return at < 0 ? 0.0
                  : text.mid(at + 6, lineLength).simplified().split(' ').constFirst().toDouble() / 1024.0;
}

Cost costOf(const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    Cost cost;
    QElapsedTimer timer;
    timer.start();
    process.start(QStringLiteral(GROWTHCHECK_PROGRAM), arguments);
    process.waitForStarted(-1);
    const qint64 processId = process.processId();
    while (!process.waitForFinished(1) && process.state() != QProcess::NotRunning) {
        cost.megabytes = qMax(cost.megabytes, peakMegabytes(processId));
    }
    if (process.exitStatus() != QProcess::NormalExit) {
        fail("growthcheck broke off");
    }
    cost.seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    return cost;
}

QVector<QStringList> forms()
{
    return {{}, {QStringLiteral("--json")}, {QStringLiteral("--csv")}, {QStringLiteral("--vcd")},
        {QStringLiteral("--wire")}, {QStringLiteral("--html"), QStringLiteral("page.html")}};
}

int measure()
{
    const Figures figures("growthcheck-limits");
    const QString name = QStringLiteral("program.dat");
    double megabytes = 0.0;
    for (const HostileProgram& program : hostilePrograms()) {
        put(name, program.text);
        double seconds = 0.0;
        for (const QStringList& form : forms()) {
            const Cost cost
                = costOf(form + QStringList{QStringLiteral("--start-all"), QStringLiteral("25"), name});
            seconds = qMax(seconds, cost.seconds);
            megabytes = qMax(megabytes, cost.megabytes);
        }
        figures.atMost(program.name, 1.0, seconds, "s");
    }
    QStringList names;
    for (int number = 0; number < ordinaryPrograms; ++number) {
        names.append(QStringLiteral("ordinary%1.dat").arg(number));
        put(names.constLast(), ordinaryProgram());
    }
    const Cost cost = costOf(QStringList{QStringLiteral("--start-all"), QStringLiteral("25")} + names);
    figures.atMost("100 ordinary programs", 1.0, cost.seconds, "s");
    figures.atMost("memory, the most of all", 64.0, qMax(megabytes, cost.megabytes), "MB");
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    return runBenchmark(argc, argv, &measure);
}
