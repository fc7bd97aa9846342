// One session by real clicks and keys, on a display: a shutter is opened, a cell is ramped, all shutters are
// closed. What reached the simulated chamber is the same on every system and in every language.

#include "support/files.h"
#include "support/scriptedadapter.h"
#include "support/station.h"
#include "support/testmain.h"
#include "system/handledstation.h"
#include "system/realhand.h"

#include <QDir>
#include <QFile>

using namespace TestText;

namespace {

const QString bytesFile = "bytes.bin"_s;

QByteArray bytesOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// How often a channel is read depends on the time; what is sent between the readings does not.
QByteArray withRepeatsFolded(QByteArray bytes)
{
    QByteArray folded;
    QByteArray last;
    for (const Wire::Message& message : Wire::takeMessages(bytes)) {
        if (message.kind != Wire::Message::Read || message.bytes != last) {
            folded += message.bytes;
        }
        last = message.bytes;
    }
    return folded;
}

} // namespace

class SessionTest : public QObject
{
    Q_OBJECT

    bool isRecordedMore()
    {
        const int lines = fileText(recordFile).count('\n');
        return station->process().waitFor(
            [lines](const QString&) { return fileText(recordFile).count('\n') > lines + 1; });
    }

    void click(const QString& name) { RealHand::clickAt(station->where(name)); }

    void enter(const QString& name, const QString& text)
    {
        click(name);
        RealHand::enter(text);
        QTRY_COMPARE_WITH_TIMEOUT(station->text(name), text, 10000);
    }

    QString folder; // for the bytes and the pictures
    std::unique_ptr<Process> chamber;
    std::unique_ptr<HandledStation> station;

private slots:
    void initTestCase()
    {
        folder = qEnvironmentVariable("NELVO_SESSION");
        if (folder.isEmpty()) {
            QSKIP("needs a display of its own: packaging/windows/session");
        }
    }

    void cleanup()
    {
        station.reset();
        chamber.reset();
        QFile::remove(recordFile);
    }

    void reachesTheChamberByteForByte_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("english") << "-e"_s;
        QTest::newRow("japanese") << "-j"_s;
    }

    void reachesTheChamberByteForByte()
    {
        QFETCH(QString, language);
        Station::storeInUse({0});
        chamber = std::make_unique<Process>(
            chambersimProgram(), QStringList{"--listen"_s, ownLoopbackAddress(), "--record"_s, bytesFile});
        QVERIFY(chamber->waitForText("listening "_s));
        station = std::make_unique<HandledStation>(
            QStringList{"QT_QPA_PLATFORM="_s + qEnvironmentVariable("NELVO_SESSION_PLATFORM")},
            QStringList{language});
        QVERIFY(station->isUp());
        QVERIFY(chamber->waitForText("shutters xxxxxxx"_s));
        QVERIFY(isRecordedMore());

        click(cell("NS", 1));
        click("ChangeShutterB"_s);
        QVERIFY(chamber->waitForText("shutters xoxxxxx"_s));
        QVERIFY(isRecordedMore());

        enter(cell("TDeg", 0), "30"_s);
        enter(cell("DTime", 0), "0.5"_s);
        click(cell("RunT", 0));
        QVERIFY(chamber->waitForText("setpoint 01 30.0"_s));
        QVERIFY(isRecordedMore());
        station->grab(QDir(folder).filePath("session%1.png"_s.arg(language)));

        click("AllCloseB"_s);
        QVERIFY(chamber->waitForText("shutters xxxxxxx"_s, 2));
        QVERIFY(isRecordedMore());
        station->process().terminate();
        QVERIFY(chamber->waitForText("disconnected"_s));

        const QByteArray read = Wire::readRequest(0);
        const QByteArray bytes = withRepeatsFolded(bytesOf(bytesFile));
        QCOMPARE(bytes,
            Wire::opening + Wire::toTemperatures + read + Wire::toShutters + Wire::shutters(0b10)
                + Wire::toTemperatures + read + Wire::setPoint(0, "0030.0") + read + Wire::toShutters
                + Wire::shutters(0) + Wire::toTemperatures + read);
        putFile(QDir(folder).filePath("session%1.bytes"_s.arg(language)), bytes);
    }
};

NELVO_TEST_MAIN(SessionTest)
#include "session.moc"
