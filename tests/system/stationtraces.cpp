// What a station leaves behind that was unpacked and not installed: the files of its working folder, the
// folder of programs on the desktop, and nothing else; among the files of its user, beside its program, and,
// on Windows, among what the registry has of its user's programs.

#include "support/files.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

using namespace TestText;

namespace {

// A line each, so that a failure shows what is new.
using Traces = QMap<QString, QString>;

// What lies in `folder`, but for what lies in the test's own working folder. A folder is noted by its name.
void addFiles(Traces& traces, const QString& folder)
{
    const QString working = QDir::current().canonicalPath();
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo entry = entries.fileInfo();
        if (entry.isSymLink() || entry.canonicalFilePath().startsWith(working)) {
            continue;
        }
        traces[path] = entry.isDir()
            ? "a folder"_s
            : "%1 bytes, %2"_s.arg(entry.size()).arg(entry.lastModified().toString(Qt::ISODateWithMs));
    }
}

void addRegistry(Traces& traces)
{
#ifdef Q_OS_WIN
    const QSettings software("HKEY_CURRENT_USER\\Software"_s, QSettings::NativeFormat);
    for (const QString& key : software.allKeys()) {
        traces["HKEY_CURRENT_USER\\Software: "_s + key] = software.value(key).toString();
    }
#else
    Q_UNUSED(traces)
#endif
}

Traces tracesNow()
{
    Traces traces;
    addFiles(traces, QDir::homePath());
    addFiles(traces, QFileInfo(nelvoProgram()).absolutePath());
    addRegistry(traces);
    return traces;
}

QStringList changes(const Traces& before, const Traces& after)
{
    QStringList found;
    for (auto trace = after.begin(); trace != after.end(); ++trace) {
        if (before.value(trace.key()) != trace.value()) {
            found.append(trace.key() + ": "_s + trace.value());
        }
    }
    for (auto trace = before.begin(); trace != before.end(); ++trace) {
        if (!after.contains(trace.key())) {
            found.append(trace.key() + " is gone"_s);
        }
    }
    return found;
}

} // namespace

class StationTracesTest : public QObject
{
    Q_OBJECT

private slots:
    void allIsInTheWorkingFolder()
    {
        // The one place besides, where it is not there yet.
        const QString programs
            = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + "/NelvoProgram"_s;
        QVERIFY(QDir().mkpath(programs));
        const Traces before = tracesNow();
        QVERIFY(before.contains(programs));

        Chamber chamber;
        HandledStation station;
        QVERIFY(station.isUp());
        QVERIFY(chamber.waitForText("connected"_s));
        for (const char* button : {"NS01", "ChangeShutterB", "TCActive02", "ProgLoad", "ProgSave"}) {
            station.click(QLatin1String(button));
        }
        QVERIFY(
            station.process().waitFor([](const QString&) { return fileText(recordFile).count('\n') > 2; }));
        station.closeWindow();
        QCOMPARE(station.process().exitCode(), 0);

        QCOMPARE(changes(before, tracesNow()).join(QLatin1Char('\n')), QString());
        QStringList own = QDir().entryList(QDir::Files);
        own.sort();
        QCOMPARE(own, QStringList({stateFile, journalFile, recordFile}));
    }
};

NELVO_TEST_MAIN(StationTracesTest)
#include "stationtraces.moc"
