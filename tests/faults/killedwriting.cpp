// A station that is killed while it writes what it remembers, a program, the record and the journal: the next
// start finds the last complete state.
//
// NELVO_KILLS says how many times; each at another moment.

#include "app/conditions.h"
#include "journal/journalline.h"
#include "program/programfile.h"
#include "support/files.h"
#include "support/station.h"
#include "support/testmain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <cstdio>
#include <random>

using namespace TestText;

namespace {

const QString programFile = "killed.dat"_s;
const QString noneInUse = "xxxxxxxxx"_s;

// In-use marks after so many clicks, one channel after the other.
QString inUseAfter(int clicks)
{
    QString letters;
    for (int channel = 0; channel < Channels::count; ++channel) {
        const int times = clicks / Channels::count + (channel < clicks % Channels::count ? 1 : 0);
        letters += times % 2 == 0 ? u'o' : u'x';
    }
    return letters;
}

// What is killed: writes everything, over and over, and says how often it has.
int writeForEver(const QString& folder)
{
    QDir::setCurrent(folder);
    const MessageCapture quiet;
    Station station;
    station.build();
    for (int times = 1;; ++times) {
        station.click(cell("TCActive", (times - 1) % Channels::count));
        station.program().enter(0, "5"_s, QString::number(times));
        station.program().saveFile(programFile);
        if (inUseAfter(times) == noneInUse) { // the polling needs no adapter
            callSlot(&station.window(), "WatchTMP", 20 * Station::emptyRound);
        }
        std::printf("%d\n", times);
        std::fflush(stdout);
    }
}

// Starts it and kills it some time after it has begun; how often it had written everything.
int killedAfter(double ms)
{
    QProcess writer;
    writer.start(QCoreApplication::applicationFilePath(), {"--write"_s, QDir::currentPath()});
    if (!writer.waitForReadyRead(20000)) {
        qFatal("the writer does not write");
    }
    QElapsedTimer timer;
    timer.start();
    while (static_cast<double>(timer.nsecsElapsed()) < 1e6 * ms) {
        writer.waitForReadyRead(1);
    }
    writer.kill();
    writer.waitForFinished();
    const QList<QByteArray> lines = writer.readAllStandardOutput().split('\n');
    return lines.size() < 2 ? 0 : lines[lines.size() - 2].toInt();
}

} // namespace

class KilledWritingTest : public QObject
{
    Q_OBJECT

    // Either that of the last whole turn or of the one that was broken off.
    void expectProgram(int times)
    {
        QFile file(programFile);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        QTextStream text(&file);
        const QVector<ProgramStep> steps = ProgramFile::read(text, ProgramTab::rows);
        QCOMPARE(steps.size(), ProgramTab::rows);
        const int saved = steps[0].group.toInt();
        QVERIFY2(saved == times || saved == times + 1, qPrintable(steps[0].group));
    }

    // All lines but the last are whole.
    void expectLines()
    {
        QList<QByteArray> records = fileText(recordFile).split('\n');
        records.removeLast();
        recordLines += records.size();
        for (const QByteArray& record : records) {
            QCOMPARE(record.count('\t'), records[0].count('\t'));
        }
        QList<QByteArray> events = fileText(journalFile).split('\n');
        events.removeLast();
        for (const QByteArray& event : events) {
            QVERIFY2(readJournalLine(event), event.constData());
        }
    }

    void expectNextStart(int times)
    {
        const MessageCapture quiet;
        Station station;
        station.build();
        const QString shown = station.states("TCActive", "Active"_s, "NotInUse"_s);
        QVERIFY2(shown == inUseAfter(times) || shown == inUseAfter(times + 1), qPrintable(shown));
        QVERIFY(fileText(journalFile).contains("last-run=broken off"));
        QCOMPARE(MessageCapture::warnings(), QStringList());
    }

    int recordLines = 0; // seen in all records

private slots:
    void theNextStartFindsTheLastCompleteState()
    {
        const int kills = qEnvironmentVariable("NELVO_KILLS", "6"_s).toInt();
        std::mt19937 random(1);
        for (int kill = 0; kill < kills; ++kill) {
            for (const QString& name : {stateFile, recordFile, journalFile, programFile}) {
                QFile::remove(name);
            }
            const int times = killedAfter(random() % 100000 / 1000.0);
            expectProgram(times);
            expectLines();
            expectNextStart(times);
            if (QTest::currentTestFailed()) {
                qInfo("kill %d, after %d turns", kill, times);
                return;
            }
        }
        QVERIFY(recordLines > 0);
        qInfo("killed %d times", kills);
    }
};

int main(int argc, char* argv[])
{
    return runIsolated(argc, argv, [&] {
        const QStringList arguments = QCoreApplication::arguments();
        if (arguments.value(1) == "--write"_s) {
            return writeForEver(arguments.value(2));
        }
        KilledWritingTest test;
        return QTest::qExec(&test, argc, argv);
    });
}
#include "killedwriting.moc"
