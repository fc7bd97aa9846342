// How long the station takes from the start of its process to its first painted window, beside a program that
// builds the same widgets without texts, styles and logic (bare.cpp). Both run in turns.

#include "app/language.h"
#include "app/mbemain.h"
#include "benchmarks/station/firstpaint.h"
#include "benchmarks/station/widgettree.h"
#include "benchmarks/support/benchapp.h"
#include "benchmarks/support/figures.h"
#include "support/scriptedadapter.h"
#include "support/steadyclock.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTranslator>

#include <cstdio>
#include <cstring>

namespace {

constexpr char stationSwitch[] = "--station";
constexpr int warmUps = 2;
constexpr int runs = 21;
constexpr int patienceMs = 60000;

void writeTree(const char* path)
{
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::WriteOnly)) {
        fail("the widget tree cannot be written");
    }
    QDataStream out(&file);
    out << describeWidgets();
    const QMap<QByteArray, int> counts = countWidgets();
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        std::printf("count %s %d\n", count.key().constData(), count.value());
    }
}

// The station as its own main function starts it, up to the first painted window. `treePath` may be null.
int stationMain(int argc, char* argv[], const char* treePath)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QTranslator translator;
    speak(chooseLanguage({QString::fromLocal8Bit(argv[0])}), translator);
    auto* window = new MBEMain;
    FirstPaint painted(*window, [treePath] {
        if (treePath != nullptr) {
            writeTree(treePath);
        }
    });
    window->show();
    return QApplication::exec();
}

struct Run
{
    double ms = 0.0; ///< from the start of the process to the painted window
    QMap<QByteArray, int> counts;
};

Run runOnce(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    const qint64 start = steadyNowNs();
    process.start(program, arguments);
    if (!process.waitForFinished(patienceMs) || process.exitCode() != 0) {
        fail(("a run did not end well: " + process.readAllStandardOutput()).constData());
    }
    Run run;
    qint64 painted = 0;
    qint64 reading = 0;
    while (process.canReadLine()) {
        const QList<QByteArray> words = process.readLine().simplified().split(' ');
        if (words[0] == "painted") {
            painted = words.value(1).toLongLong();
        } else if (words[0] == "reading") {
            reading = words.value(1).toLongLong();
        } else if (words[0] == "count") {
            run.counts[words.value(1)] = words.value(2).toInt();
        }
    }
    if (painted == 0) {
        fail("a run did not paint its window");
    }
    run.ms = static_cast<double>(painted - start - reading) / 1e6;
    return run;
}

int total(const QMap<QByteArray, int>& counts)
{
    int sum = 0;
    for (const int count : counts) {
        sum += count;
    }
    return sum;
}

int measure()
{
    // Nobody has to answer: the station connects and goes on.
    const ScriptedAdapter adapter;
    qputenv("NELVO_ADAPTER", adapter.address().toLatin1());

    const QString station = QCoreApplication::applicationFilePath();
    const QString bare = QCoreApplication::applicationDirPath() + QStringLiteral("/station-start-bare");
    const QString tree = QStringLiteral("widgets.tree");
    const Run described = runOnce(station, {QLatin1String(stationSwitch), tree});
    const Run built = runOnce(bare, {tree});
    if (described.counts != built.counts) {
        fail("the bare window does not have the station's widgets");
    }

    std::vector<double> stationMs;
    std::vector<double> bareMs;
    std::vector<double> ratios; // of neighbours: a machine that slows down for a while slows both
    for (int i = 0; i < warmUps + runs; ++i) {
        const double stationRun = runOnce(station, {QLatin1String(stationSwitch)}).ms;
        const double bareRun = runOnce(bare, {tree}).ms;
        if (i >= warmUps) {
            stationMs.push_back(stationRun);
            bareMs.push_back(bareRun);
            ratios.push_back(stationRun / bareRun);
        }
    }
    const Figures figures("station-start");
    figures.atMost("first painted window, station over bare, median", 1.5, median(ratios), "");
    figures.show("  station, median", median(stationMs), "ms");
    figures.show("  the same widgets bare, median", median(bareMs), "ms");
    figures.show("  widgets in each", total(described.counts), "");
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc >= 2 && std::strcmp(argv[1], stationSwitch) == 0) {
        return stationMain(argc, argv, argc == 3 ? argv[2] : nullptr);
    }
    return runBenchmark(argc, argv, &measure);
}
