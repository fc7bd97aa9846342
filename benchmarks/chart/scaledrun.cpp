#include "benchmarks/chart/scaledrun.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

namespace {

const char* const mark = "NELVO_BENCH_SCALED";

struct Scale
{
    const char* factor;
    const char* sameSize; // the unscaled widget with as many device pixels
};

// Median processor time in ms by benchmark; empty when the run failed.
QMap<QString, double> run(const Scale& scale)
{
    const QTemporaryDir folder;
    const QString results = folder.filePath(QStringLiteral("results.json"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(scale.factor));
    environment.insert(QString::fromLatin1(mark), QStringLiteral("1"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(),
        {QStringLiteral("--benchmark_filter=/ours$|^drag/"), QStringLiteral("--benchmark_out=") + results,
            QStringLiteral("--benchmark_out_format=json")});
    process.waitForFinished(-1);
    QFile file(results);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QMap<QString, double> times;
    const QJsonArray entries
        = QJsonDocument::fromJson(file.readAll()).object().value(QStringLiteral("benchmarks")).toArray();
    for (const QJsonValue& value : entries) {
        const QJsonObject entry = value.toObject();
        if (entry.value(QStringLiteral("aggregate_name")).toString() == QStringLiteral("median")) {
            times.insert(entry.value(QStringLiteral("run_name")).toString(),
                entry.value(QStringLiteral("cpu_time")).toDouble());
        }
    }
    return times;
}

} // namespace

bool isScaledRun()
{
    return qEnvironmentVariableIsSet(mark);
}

void printScaledRuns(const Figures& figures, const RunTimes& unscaled)
{
    const Scale scales[] = {{"1.25", "1250x700"}, {"1.5", "1500x840"}, {"2", "2000x1120"}};
    for (const Scale& scale : scales) {
        const std::string same = std::string("/ours_") + scale.sameSize;
        if (!unscaled.has("waveform" + same) || !unscaled.has("noise" + same)) {
            continue;
        }
        const QMap<QString, double> times = run(scale);
        if (times.isEmpty()) {
            fail("no results on a scaled display");
        }
        const auto figure = [&scale](const char* what) {
            return std::string("display scaled by ") + scale.factor + ": " + what;
        };
        const double waveform = times.value(QStringLiteral("waveform/ours"));
        const double noise = times.value(QStringLiteral("noise/ours"));
        figures.atMost(figure("waveform").c_str(), frameMs, waveform, "ms");
        figures.atMost(figure("waveform, scaled / unscaled").c_str(), 2.0,
            waveform / unscaled.ms("waveform" + same), "");
        figures.atMost(
            figure("noise, scaled / unscaled").c_str(), 2.0, noise / unscaled.ms("noise" + same), "");
        double slowest = 0.0;
        for (auto it = times.begin(); it != times.end(); ++it) {
            slowest = it.key().startsWith(QLatin1String("drag/")) ? std::max(slowest, it.value()) : slowest;
        }
        figures.atMost(figure("slowest kind of drag step").c_str(), frameMs, slowest, "ms");
    }
}
