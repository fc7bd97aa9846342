// What the station answers on the command line, and where it takes the adapter's address from.

#include "support/files.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "system/process.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

struct Ended
{
    int status;
    QString text;
};

Ended run(const QStringList& arguments)
{
    Process nelvo(nelvoProgram(), arguments, {"LC_ALL=C.UTF-8"_s});
    return {nelvo.exitCode(), nelvo.output()};
}

// The station in a folder of its own, with a nelvo.ini beside it.
class Laboratory
{
public:
    explicit Laboratory(const QByteArray& ini)
        : program(folder.filePath(QFileInfo(nelvoProgram()).fileName()))
    {
        if (!QFile::copy(nelvoProgram(), program)) {
            qFatal("cannot copy the station");
        }
        putFile(folder.filePath("nelvo.ini"_s), ini);
    }

    std::unique_ptr<Process> start(const QString& adapterInEnvironment) const
    {
        return std::make_unique<Process>(program, QStringList{"-e"_s},
            QStringList{"NELVO_ADAPTER="_s + adapterInEnvironment, stationPlatform()});
    }

private:
    const QTemporaryDir folder;
    const QString program;
};

} // namespace

class StationAnswersTest : public QObject
{
    Q_OBJECT

    const QString ownAddress = ownLoopbackAddress();

private slots:
    void cleanup()
    {
        for (const QString& name : {recordFile, stateFile, journalFile}) {
            QFile::remove(name);
        }
    }

    void helpAndVersionAreReadableInBothLanguages()
    {
        const Ended english = run({"-e"_s, "--help"_s});
        QCOMPARE(english.status, 0);
        QVERIFY2(english.text.contains("shows the version and ends"_s), qPrintable(english.text));
        const Ended japanese = run({"--help"_s});
        QCOMPARE(japanese.status, 0);
        QVERIFY2(japanese.text.contains("バージョンを表示して終了します"_s), qPrintable(japanese.text));
        const Ended version = run({"--version"_s});
        QCOMPARE(version.status, 0);
        QVERIFY2(version.text.contains(QRegularExpression("^Nelvo \\d+\\.\\d+\\.\\d+\\n$"_s)),
            qPrintable(version.text));
        QVERIFY(!QFile::exists(stateFile)); // no station was started
    }

    void theCheckOfAPcEndsWithItsVerdict()
    {
        const Ended check = run({"-e"_s, "--check-pc=1"_s});
        QVERIFY2(check.text.contains("Ticks of 10 ms: "_s), qPrintable(check.text));
        QCOMPARE(check.status, check.text.contains("can run the station"_s) ? 0 : 1);
    }

    void theFileBesideTheProgramNamesTheAdapter()
    {
        ScriptedAdapter adapter;
        const Laboratory laboratory("adapter=" + ownAddress.toLatin1() + "\r\n");
        const auto nelvo = laboratory.start(QString());
        QVERIFY(adapter.expect(Wire::opening));
    }

    void theEnvironmentWinsOverTheFile()
    {
        ScriptedAdapter adapter;
        const Laboratory laboratory("adapter=127.0.0.9\n");
        const auto nelvo = laboratory.start(ownAddress);
        QVERIFY(adapter.expect(Wire::opening));
    }

    void whatIsNoHostIsToldBeforeAnythingIsSent_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QByteArray>("told");
        QTest::newRow("the file") << QByteArray("adaptor=127.0.0.9\n") << QString()
                                  << QByteArray("adaptor=127.0.0.9");
        QTest::newRow("the variable") << QByteArray("adapter=127.0.0.9\n") << "127.0.0.9 "_s
                                      << QByteArray("NELVO_ADAPTER: \"127.0.0.9 \"");
    }

    void whatIsNoHostIsToldBeforeAnythingIsSent()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, variable);
        QFETCH(QByteArray, told);
        const Laboratory laboratory(file);
        const auto nelvo = laboratory.start(variable);
        QVERIFY(
            nelvo->waitFor([](const QString&) { return fileText(journalFile).contains("\tno-start\t"); }));
        QVERIFY2(fileText(journalFile).contains(told), fileText(journalFile));
        QVERIFY(!fileText(journalFile).contains("\tstart\t"));
        QVERIFY(nelvo->isRunning()); // it shows the box
        QVERIFY(!QFile::exists(stateFile));
    }
};

NELVO_TEST_MAIN(StationAnswersTest)
#include "stationanswers.moc"
