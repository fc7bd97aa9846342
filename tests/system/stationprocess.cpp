// The program Nelvo itself at the program chambersim, over the real socket.

#include "support/files.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "system/handledstation.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

const QStringList seed{"--seed"_s, "7"_s};
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

// The station at the chamber's address.
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
        Chamber chamber(seed);
        Nelvo nelvo;
        QVERIFY(chamber.waitForText("connected"_s));
        QVERIFY(chamber.waitForText("shutters xxxxxxx"_s));
        QVERIFY(recordGrowsBeyond(nelvo, 1));
        QVERIFY(QFile::exists(stateFile));
        QVERIFY(!chamber.output().contains("rejected"_s));
    }

    void sendsNothingWhenItEnds()
    {
        Chamber chamber(seed);
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
        Chamber chamber(seed + faults);
        Nelvo nelvo;
        QVERIFY(chamber.waitForText("fault "_s));
        // It goes on measuring with what came of the faults.
        const int lines = fileText(recordFile).count('\n');
        QVERIFY(recordGrowsBeyond(nelvo, lines + 2));
        QVERIFY(!chamber.output().contains("rejected"_s));
    }
};

NELVO_TEST_MAIN(StationProcessTest)
#include "stationprocess.moc"
