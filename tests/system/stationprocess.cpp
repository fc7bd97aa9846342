// The program Nelvo itself at the program chambersim, over the real socket.

#include "support/files.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "system/process.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

const QString english = "\"GPIB shutter controll [xxxxxxx]\""_s;
const QString japanese = "\"GPIB シャッター制御 [xxxxxxx]\""_s;

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

// Waits until the temperature record has more than `lines` lines.
bool recordGrowsBeyond(Process& running, int lines)
{
    return running.waitFor([&](const QString&) { return fileText(recordFile).count('\n') > lines; });
}

#ifdef Q_OS_WIN
const QString programEnding = ".exe"_s;
#else
const QString programEnding;
#endif

// Has the station be started under another name as well.
bool giveName(const QString& program)
{
#ifdef Q_OS_WIN
    return QFile::copy(nelvoProgram(), program); // a link would be started under its target's name
#else
    return QFile::link(nelvoProgram(), program);
#endif
}

// The simulator, listening at this process's own address.
class Chamber : public Process
{
public:
    explicit Chamber(const QStringList& faults = {})
        : Process(
            chambersimProgram(), QStringList{"--listen"_s, ownLoopbackAddress(), "--seed"_s, "7"_s} + faults)
    {
        if (!waitForText("listening "_s)) {
            qFatal("the simulator does not listen");
        }
    }
};

// The station at that address.
class Nelvo : public Process
{
public:
    explicit Nelvo(const QStringList& arguments = {}, const QString& program = nelvoProgram())
        : Process(program, arguments,
            {"NELVO_ADAPTER="_s + ownLoopbackAddress(), stationPlatform(), "LC_ALL=C.UTF-8"_s})
    {
    }
};

} // namespace

class StationProcessTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QFile::remove(recordFile);
        QFile::remove(stateFile);
    }

    void startsClosesShuttersReadsAndRecords()
    {
        Chamber chamber;
        Nelvo nelvo;
        QVERIFY(chamber.waitForText("connected"_s));
        QVERIFY(chamber.waitForText("shutters xxxxxxx"_s));
        QVERIFY(recordGrowsBeyond(nelvo, 1));
        QVERIFY(QFile::exists(stateFile));
        QVERIFY(!chamber.output().contains("rejected"_s));
    }

    void sendsNothingWhenItEnds()
    {
        Chamber chamber;
        Nelvo nelvo;
        QVERIFY(chamber.waitForText("shutters xxxxxxx"_s));
        QVERIFY(recordGrowsBeyond(nelvo, 0));
        chamber.forget();
        nelvo.terminate();
        QVERIFY(chamber.waitForText("disconnected"_s));
        QVERIFY(!chamber.output().contains("shutters"_s));
        QVERIFY(!chamber.output().contains("setpoint"_s));
    }

    void language_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("expected");

        QTest::newRow("Japanese by default") << "Nelvo"_s << QStringList{} << japanese;
        QTest::newRow("-e") << "Nelvo"_s << words("-e") << english;
        QTest::newRow("-e -j") << "Nelvo"_s << words("-e -j") << japanese;
        QTest::newRow("-j -e") << "Nelvo"_s << words("-j -e") << english;
        QTest::newRow("-E is no switch") << "Nelvo"_s << words("-E") << japanese;
        QTest::newRow("the second name") << "Nelvoe"_s << QStringList{} << english;
        QTest::newRow("the second name and -j") << "Nelvoe"_s << words("-j") << english;
        QTest::newRow("a directory of that name") << "myNelvoe2/Nelvo"_s << words("-j") << english;
    }

    void language()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, arguments);
        QFETCH(QString, expected);

        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString program = directory.filePath(name + programEnding);
        QVERIFY(QDir().mkpath(QFileInfo(program).path()));
        QVERIFY(giveName(program));
        Nelvo nelvo(arguments, program);
        QVERIFY(nelvo.waitForText(expected));
    }

    void goesOnUnderFaultyReplies_data()
    {
        QTest::addColumn<QStringList>("faults");
        QTest::newRow("er and garbled") << words("--fault er=0.2 --fault garbled=0.2");
        QTest::newRow("duplicate, split, merged")
            << words("--fault duplicate=0.2 --fault split=0.3 --fault merged=0.2");
        QTest::newRow("wrong length") << words("--fault wrong-length=0.02");
    }

    void goesOnUnderFaultyReplies()
    {
        QFETCH(QStringList, faults);
        Chamber chamber(faults);
        Nelvo nelvo;
        QVERIFY(recordGrowsBeyond(nelvo, 2));
        QVERIFY(chamber.waitForText("fault "_s));
        QVERIFY(!chamber.output().contains("rejected"_s));
        QVERIFY(nelvo.isRunning());
    }

    void staysUpWhenRepliesStop_data()
    {
        QTest::addColumn<QStringList>("faults");
        QTest::newRow("lost") << words("--fault lost=0.1");
        QTest::newRow("late") << words("--fault late=0.3");
        QTest::newRow("silent") << words("--fault silent=0.1");
        QTest::newRow("half-open") << words("--fault half-open=0.1");
    }

    void staysUpWhenRepliesStop()
    {
        QFETCH(QStringList, faults);
        Chamber chamber(faults);
        Nelvo nelvo;
        QVERIFY(chamber.waitForText("fault "_s));
        chamber.kill();
        // It takes the loss of the connection in, which it could not if it hung.
        QVERIFY(nelvo.isRunning());
        nelvo.terminate();
        QVERIFY(!nelvo.isRunning());
        QVERIFY(!nelvo.output().contains("QIODevice"_s));
    }

    void outlivesACutConnection()
    {
        Chamber chamber(words("--fault cut=0.2"));
        Nelvo nelvo;
        QVERIFY(chamber.waitForText("disconnected"_s));
        // Long enough for the station to have tried to send: each of its ticks does.
        QVERIFY(QTest::qWaitFor([&nelvo] { return !nelvo.isRunning(); }, 500) == false);
        QVERIFY(!nelvo.output().contains("QNativeSocketEngine"_s));
        QVERIFY(!nelvo.output().contains("QIODevice"_s));
    }

    void staysUpWithoutAnAdapter()
    {
        Nelvo nelvo;
        QVERIFY(nelvo.waitForText(japanese));
        QVERIFY(nelvo.isRunning());
        QVERIFY(!nelvo.output().contains("QNativeSocketEngine"_s));
    }
};

NELVO_TEST_MAIN(StationProcessTest)
#include "stationprocess.moc"
