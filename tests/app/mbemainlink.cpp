// The station's first words to the adapter, and its silence when there is none.

#include "app/adapteraddress.h"
#include "app/mbemain.h"
#include "support/messagecapture.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"
#include "support/ticks.h"

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

namespace {

const QString stateFile = QStringLiteral("NelvoCurrentStat.dat");

// All shutters closed is ESC, an empty mask, LF.
const QByteArray beforeTheFirstRead = QByteArrayLiteral("++eoi\n"
                                                        "\n\n"
                                                        "++auto 1\n"
                                                        "++addr 3\n"
                                                        "++eos 3\n"
                                                        "++eoi\n"
                                                        "\x1B\x00\n");
const QByteArray firstRead = QByteArrayLiteral("++addr 1\n"
                                               "++eos 0\n"
                                               "++eoi 1\n"
                                               "\x04"
                                               "01M1\x05\n");

void clickEveryButton(MBEMain& window)
{
    const auto buttons = window.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        const QString name = button->objectName();
        if (name.startsWith(QLatin1String("CS")) || name.startsWith(QLatin1String("NS"))
            || name == QLatin1String("ChangeShutterB") || name == QLatin1String("AllCloseB")) {
            button->click();
        }
    }
}

/// Returns once a connection to the adapter's place has been refused: whatever tried before has been, too.
bool refusalIsThrough()
{
    QTcpSocket probe;
    probe.connectToHost(ownLoopbackAddress(), adapterPort);
    return QTest::qWaitFor([&] { return probe.error() == QAbstractSocket::ConnectionRefusedError; });
}

} // namespace

class MBEMainLink : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void openingBytes();
    void openingBytesBeforeTheFirstTick();
    void firstReadIsOfTheFirstCellInUse();
    void noReadWithoutACellInUse();
    void unreachableAdapterLeavesTheStationSilentAndUsable();
    void lostAdapterLeavesTheStationSilentAndUsable();
    void closingTheWindowSendsNothing();
    void stateFileIsRewrittenBeforeTheConnectionIsOpened();
};

void MBEMainLink::init()
{
    QFile::remove(stateFile);
    qputenv("NELVO_ADAPTER", ownLoopbackAddress().toLatin1());
}

void MBEMainLink::openingBytes()
{
    ScriptedAdapter adapter;
    const MBEMain window;
    QVERIFY(adapter.expect(beforeTheFirstRead + firstRead));
    QVERIFY(adapter.expectNothing());
}

void MBEMainLink::openingBytesBeforeTheFirstTick()
{
    ScriptedAdapter adapter;
    const HeldTicks held;
    MBEMain window;
    QVERIFY(adapter.expect(beforeTheFirstRead));
    QVERIFY(adapter.expectNothing());
    callSlot(&window, "WatchTMP");
    QVERIFY(adapter.expect(firstRead));
    QVERIFY(adapter.expectNothing());
}

void MBEMainLink::firstReadIsOfTheFirstCellInUse()
{
    QFile file(stateFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("ActiveF0 InActive\nActiveF1 InActive\n");
    file.close();
    ScriptedAdapter adapter;
    const MBEMain window;
    QVERIFY(adapter.expect(beforeTheFirstRead + "++addr 1\n++eos 0\n++eoi 1\n\x04" + "03M1\x05\n"));
}

void MBEMainLink::noReadWithoutACellInUse()
{
    QFile file(stateFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int channel = 0; channel < 9; ++channel) {
        file.write("ActiveF" + QByteArray::number(channel) + " InActive\n");
    }
    file.close();
    ScriptedAdapter adapter;
    const MBEMain window;
    QVERIFY(adapter.expect(beforeTheFirstRead));
    // A record is written at the end of a round: the channels have all had their turn.
    QVERIFY(QTest::qWaitFor([] { return QFile::exists(QStringLiteral("TemperatureRec.dat")); }));
    QVERIFY(adapter.expectNothing());
}

void MBEMainLink::unreachableAdapterLeavesTheStationSilentAndUsable()
{
    const MessageCapture messages;
    const HeldTicks held;
    MBEMain window;
    QVERIFY(refusalIsThrough());
    clickEveryButton(window);
    callSlot(&window, "WatchTMP", 700);
    clickEveryButton(window);
    QVERIFY(refusalIsThrough());
    QCOMPARE(window.findChild<QAbstractButton*>(QStringLiteral("NS03"))->text(), QStringLiteral("Close"));
    QCOMPARE(
        window.findChild<QAbstractButton*>(QStringLiteral("TCActive01"))->text(), QStringLiteral("Active"));
    QCOMPARE(MessageCapture::warnings(), QStringList());
    QVERIFY(MessageCapture::texts().contains(QStringLiteral("Shutter Ok")));
}

void MBEMainLink::lostAdapterLeavesTheStationSilentAndUsable()
{
    const MessageCapture messages;
    const HeldTicks held;
    ScriptedAdapter adapter;
    MBEMain window;
    QVERIFY(adapter.expect(beforeTheFirstRead));
    adapter.cut();
    clickEveryButton(window);
    QVERIFY(adapter.expectNothing());
    clickEveryButton(window);
    callSlot(&window, "WatchTMP", 700);
    QVERIFY(adapter.expectNothing());
    QCOMPARE(MessageCapture::warnings(), QStringList());
}

void MBEMainLink::closingTheWindowSendsNothing()
{
    ScriptedAdapter adapter;
    const HeldTicks held;
    MBEMain window;
    QVERIFY(adapter.expect(beforeTheFirstRead));
    window.close();
    QVERIFY(adapter.expectNothing());
    QVERIFY(adapter.isConnected());
}

// The state file is a pipe here, which keeps the station from reading on until somebody opens its other end.
// Until then the adapter must not see a connection; when it sees one, the pipe has been replaced by a file.
void MBEMainLink::stateFileIsRewrittenBeforeTheConnectionIsOpened()
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

NELVO_TEST_MAIN(MBEMainLink)

#include "mbemainlink.moc"
