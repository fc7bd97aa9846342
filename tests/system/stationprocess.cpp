// The program Nelvo itself at the program chambersim, over the real socket.

#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "system/process.h"

#include <QDir>
#include <QFile>

class StationProcess : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void startsClosesShuttersReadsAndRecords();
    void sendsNothingWhenItEnds();
    void language_data();
    void language();
    void goesOnUnderFaultyReplies_data();
    void goesOnUnderFaultyReplies();
    void staysUpWhenRepliesStop_data();
    void staysUpWhenRepliesStop();
    void outlivesACutConnection();
    void staysUpWithoutAnAdapter();

private:
    static QStringList chamberOptions(const QStringList& more = {});
    static QStringList stationEnvironment();
    static int recordLines();
};

namespace {

const QString station = QStringLiteral(NELVO_PROGRAM);
const QString simulator = QStringLiteral(CHAMBERSIM_PROGRAM);
const QString english = QStringLiteral("\"GPIB shutter controll [xxxxxxx]\"");
const QString japanese = QString::fromUtf8("\"GPIB シャッター制御 [xxxxxxx]\"");

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

bool recordGrowsBeyond(Process& running, int lines, int (*count)())
{
    return running.waitFor([&](const QString&) { return count() > lines; });
}

} // namespace

QStringList StationProcess::chamberOptions(const QStringList& more)
{
    return QStringList{QStringLiteral("--listen"), ownLoopbackAddress(), QStringLiteral("--seed"),
               QStringLiteral("7")}
    + more;
}

QStringList StationProcess::stationEnvironment()
{
    return {QStringLiteral("NELVO_ADAPTER=") + ownLoopbackAddress(),
        QStringLiteral("QT_QPA_PLATFORM=offscreen"), QStringLiteral("LC_ALL=C.UTF-8")};
}

int StationProcess::recordLines()
{
    QFile record(QStringLiteral("TemperatureRec.dat"));
    return record.open(QIODevice::ReadOnly) ? record.readAll().count('\n') : 0;
}

void StationProcess::cleanup()
{
    QFile::remove(QStringLiteral("TemperatureRec.dat"));
    QFile::remove(QStringLiteral("NelvoCurrentStat.dat"));
}

void StationProcess::startsClosesShuttersReadsAndRecords()
{
    Process chamber(simulator, chamberOptions());
    QVERIFY(chamber.waitForText(QStringLiteral("listening ")));
    Process nelvo(station, {}, stationEnvironment());
    QVERIFY(chamber.waitForText(QStringLiteral("connected")));
    QVERIFY(chamber.waitForText(QStringLiteral("shutters xxxxxxx")));
    QVERIFY(recordGrowsBeyond(nelvo, 1, recordLines));
    QVERIFY(QFile::exists(QStringLiteral("NelvoCurrentStat.dat")));
    QVERIFY(!chamber.output().contains(QStringLiteral("rejected")));
}

void StationProcess::sendsNothingWhenItEnds()
{
    Process chamber(simulator, chamberOptions());
    QVERIFY(chamber.waitForText(QStringLiteral("listening ")));
    Process nelvo(station, {}, stationEnvironment());
    QVERIFY(chamber.waitForText(QStringLiteral("shutters xxxxxxx")));
    QVERIFY(recordGrowsBeyond(nelvo, 0, recordLines));
    chamber.forget();
    nelvo.terminate();
    QVERIFY(chamber.waitForText(QStringLiteral("disconnected")));
    QVERIFY(!chamber.output().contains(QStringLiteral("shutters")));
    QVERIFY(!chamber.output().contains(QStringLiteral("setpoint")));
}

void StationProcess::language_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");

    QTest::newRow("Japanese by default") << QStringLiteral("Nelvo") << QStringList{} << japanese;
    QTest::newRow("-e") << QStringLiteral("Nelvo") << words("-e") << english;
    QTest::newRow("-e -j") << QStringLiteral("Nelvo") << words("-e -j") << japanese;
    QTest::newRow("-j -e") << QStringLiteral("Nelvo") << words("-j -e") << english;
    QTest::newRow("-E is no switch") << QStringLiteral("Nelvo") << words("-E") << japanese;
    QTest::newRow("the second name") << QStringLiteral("Nelvoe") << QStringList{} << english;
    QTest::newRow("the second name and -j") << QStringLiteral("Nelvoe") << words("-j") << english;
    QTest::newRow("a directory of that name") << QStringLiteral("myNelvoe2/Nelvo") << words("-j") << english;
}

void StationProcess::language()
{
    QFETCH(QString, name);
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);

    QTemporaryDir directory;
    QVERIFY(directory.isValid());
    const QString program = directory.filePath(name);
    QVERIFY(QDir().mkpath(QFileInfo(program).path()));
    QVERIFY(QFile::link(station, program));
    Process nelvo(program, arguments, stationEnvironment());
    QVERIFY(nelvo.waitForText(expected));
}

void StationProcess::goesOnUnderFaultyReplies_data()
{
    QTest::addColumn<QStringList>("faults");
    QTest::newRow("er and garbled") << words("--fault er=0.2 --fault garbled=0.2");
    QTest::newRow("duplicate, split, merged")
        << words("--fault duplicate=0.2 --fault split=0.3 --fault merged=0.2");
    QTest::newRow("wrong length") << words("--fault wrong-length=0.02");
}

void StationProcess::staysUpWhenRepliesStop_data()
{
    QTest::addColumn<QStringList>("faults");
    QTest::newRow("lost") << words("--fault lost=0.1");
    QTest::newRow("late") << words("--fault late=0.3");
    QTest::newRow("silent") << words("--fault silent=0.1");
    QTest::newRow("half-open") << words("--fault half-open=0.1");
}

void StationProcess::staysUpWhenRepliesStop()
{
    QFETCH(QStringList, faults);
    Process chamber(simulator, chamberOptions(faults));
    QVERIFY(chamber.waitForText(QStringLiteral("listening ")));
    Process nelvo(station, {}, stationEnvironment());
    QVERIFY(chamber.waitForText(QStringLiteral("fault ")));
    chamber.terminate();
    // It takes the loss of the connection in, which it could not if it hung.
    QVERIFY(nelvo.isRunning());
    nelvo.terminate();
    QVERIFY(!nelvo.isRunning());
    QVERIFY(!nelvo.output().contains(QStringLiteral("QIODevice")));
}

void StationProcess::goesOnUnderFaultyReplies()
{
    QFETCH(QStringList, faults);
    Process chamber(simulator, chamberOptions(faults));
    QVERIFY(chamber.waitForText(QStringLiteral("listening ")));
    Process nelvo(station, {}, stationEnvironment());
    QVERIFY(recordGrowsBeyond(nelvo, 2, recordLines));
    QVERIFY(chamber.waitForText(QStringLiteral("fault ")));
    QVERIFY(!chamber.output().contains(QStringLiteral("rejected")));
    QVERIFY(nelvo.isRunning());
}

void StationProcess::outlivesACutConnection()
{
    Process chamber(simulator, chamberOptions({QStringLiteral("--fault"), QStringLiteral("cut=0.2")}));
    QVERIFY(chamber.waitForText(QStringLiteral("listening ")));
    Process nelvo(station, {}, stationEnvironment());
    QVERIFY(chamber.waitForText(QStringLiteral("disconnected")));
    // Long enough for the station to have tried to send: each of its ticks does.
    QVERIFY(QTest::qWaitFor([&nelvo] { return !nelvo.isRunning(); }, 500) == false);
    QVERIFY(!nelvo.output().contains(QStringLiteral("QNativeSocketEngine")));
    QVERIFY(!nelvo.output().contains(QStringLiteral("QIODevice")));
}

void StationProcess::staysUpWithoutAnAdapter()
{
    Process nelvo(station, {}, stationEnvironment());
    QVERIFY(nelvo.waitForText(japanese));
    QVERIFY(nelvo.isRunning());
    QVERIFY(!nelvo.output().contains(QStringLiteral("QNativeSocketEngine")));
}

NELVO_TEST_MAIN(StationProcess)
#include "stationprocess.moc"
