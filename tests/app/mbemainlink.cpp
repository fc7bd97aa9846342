// The station's first words to the adapter, and its silence when there is none.

#include "app/adapteraddress.h"
#include "support/files.h"
#include "support/messagecapture.h"
#include "support/station.h"
#include "support/testmain.h"

#include <QAbstractButton>
#include <QFile>
#include <QFileInfo>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>
#include <thread>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace TestText;

namespace {

void clickEveryButton(const MBEMain& window)
{
    const auto buttons = window.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        const QString name = button->objectName();
        if (name.startsWith("CS"_s) || name.startsWith("NS"_s) || name == "ChangeShutterB"_s
            || name == "AllCloseB"_s) {
            button->click();
        }
    }
}

// Returns once a connection to the adapter's place has been refused: whatever tried before has been, too.
bool refusalIsThrough()
{
    QTcpSocket probe;
    probe.connectToHost(ownLoopbackAddress(), adapterPort);
    return QTest::qWaitFor([&] { return probe.error() == QAbstractSocket::ConnectionRefusedError; });
}

} // namespace

class MBEMainLinkTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(stateFile);
        QFile::remove(journalFile);
        qputenv("NELVO_ADAPTER", ownLoopbackAddress().toLatin1());
    }

    void openingBytes()
    {
        Station station(Station::Time::Running);
        QVERIFY(station.open());
        QVERIFY(station.adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
        QVERIFY(station.adapter.expectNothing());
    }

    void openingBytesBeforeTheFirstTick()
    {
        Station station;
        QVERIFY(station.open());
        QVERIFY(station.adapter.expectNothing());
        station.tick();
        QVERIFY(station.adapter.expect(Wire::toTemperatures + Wire::readRequest(0)));
        QVERIFY(station.adapter.expectNothing());
    }

    void firstReadIsOfTheFirstCellInUse()
    {
        putFile(stateFile, "ActiveF0 InActive\nActiveF1 InActive\n");
        Station station(Station::Time::Running);
        QVERIFY(station.open());
        QVERIFY(station.adapter.expect(Wire::toTemperatures + Wire::readRequest(2)));
    }

    void noReadWithoutACellInUse()
    {
        Station::storeInUse({});
        Station station(Station::Time::Running);
        QVERIFY(station.open());
        // A record is written at the end of a round: the channels have all had their turn.
        QTRY_VERIFY(Station::records() > 0);
        QVERIFY(station.adapter.expectNothing());
    }

    void unreachableAdapterLeavesTheStationSilentAndUsable()
    {
        const MessageCapture messages;
        const HeldTicks held;
        MBEMain window;
        QVERIFY(refusalIsThrough());
        QTRY_VERIFY(fileText(journalFile).contains("\trefused\twhy="));
        clickEveryButton(window);
        callSlot(&window, "WatchTMP", 700);
        clickEveryButton(window);
        QVERIFY(refusalIsThrough());
        QCOMPARE(window.findChild<QAbstractButton*>(cell("NS", 2))->text(), "Close"_s);
        QCOMPARE(window.findChild<QAbstractButton*>(cell("TCActive", 0))->text(), "Active"_s);
        QCOMPARE(MessageCapture::warnings(), QStringList());
        QVERIFY(MessageCapture::texts().contains("Shutter Ok"_s));
    }

    void lostAdapterLeavesTheStationSilentAndUsable()
    {
        const MessageCapture messages;
        Station station;
        QVERIFY(station.open());
        station.adapter.cut();
        clickEveryButton(station.window());
        QVERIFY(station.adapter.expectNothing());
        clickEveryButton(station.window());
        station.tick(700);
        QVERIFY(station.adapter.expectNothing());
        QCOMPARE(MessageCapture::warnings(), QStringList());
    }

    void closingTheWindowSendsNothing()
    {
        Station station;
        QVERIFY(station.open());
        station.window().close();
        QVERIFY(station.adapter.expectNothing());
        QVERIFY(station.adapter.isConnected());
    }

    // The state file is a pipe here, which keeps the station from reading on until somebody opens its other
    // end. Until then the adapter must not see a connection; when it sees one, the pipe has been replaced by
    // a file.
    void stateFileIsRewrittenBeforeTheConnectionIsOpened()
    {
#ifndef Q_OS_UNIX
        QSKIP("needs a named pipe");
#else
        QCOMPARE(mkfifo(qPrintable(stateFile), 0600), 0);
        bool listens = false;
        bool connectedTooEarly = true;
        bool connectedAtAll = false;
        bool rewritten = false;
        std::thread adapter([&] {
            QTcpServer server;
            listens = server.listen(QHostAddress(ownLoopbackAddress()), adapterPort);
            connectedTooEarly = server.waitForNewConnection(300);
            QFile otherEnd(stateFile);
            otherEnd.open(QIODevice::WriteOnly);
            connectedAtAll = server.waitForNewConnection(5000);
            rewritten = QFileInfo(stateFile).isFile();
        });
        {
            const HeldTicks held;
            const MBEMain window;
            adapter.join();
        }
        QVERIFY(listens);
        QVERIFY(!connectedTooEarly);
        QVERIFY(connectedAtAll);
        QVERIFY(rewritten);
#endif
    }
};

NELVO_TEST_MAIN(MBEMainLinkTest)
#include "mbemainlink.moc"
