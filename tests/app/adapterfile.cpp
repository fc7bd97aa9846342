// What a laboratory writes into nelvo.ini, right and wrong.

#include "app/adapterfile.h"

#include "support/files.h"
#include "support/testmain.h"

#include <QDir>

using namespace TestText;

class AdapterFileTest : public QObject
{
    Q_OBJECT

    static AdapterFile fileWith(const QByteArray& text)
    {
        putFile("nelvo.ini"_s, text);
        return readAdapterFile("nelvo.ini"_s);
    }

private slots:
    void itLiesBesideTheProgram()
    {
        QCOMPARE(adapterFileName(), QCoreApplication::applicationDirPath() + "/nelvo.ini"_s);
    }

    void noFileNamesNoHost()
    {
        const AdapterFile none = readAdapterFile("missing.ini"_s);
        QCOMPARE(none.host, QString());
        QCOMPARE(none.mistake, QString());
    }

    void aHostIsTaken_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("host");
        QTest::newRow("an address") << QByteArray("adapter=192.0.2.10\n") << "192.0.2.10"_s;
        QTest::newRow("the simulator's") << QByteArray("adapter=127.0.0.1") << "127.0.0.1"_s;
        QTest::newRow("a name") << QByteArray("adapter=rig-2\n") << "rig-2"_s;
        QTest::newRow("a long name") << QByteArray("adapter=gpib_1.mbe.lab.example\n")
                                     << "gpib_1.mbe.lab.example"_s;
        QTest::newRow("blanks around it") << QByteArray("adapter =  192.0.2.10  \n") << "192.0.2.10"_s;
        QTest::newRow("line ends of Windows")
            << QByteArray("; rig 1\r\nadapter=192.0.2.10\r\n") << "192.0.2.10"_s;
        QTest::newRow("a mark of UTF-8 before it") << QByteArray("\xEF\xBB\xBF"
                                                                 "adapter=rig2\r\n")
                                                   << "rig2"_s;
        QTest::newRow("nothing but remarks") << QByteArray(";adapter=192.0.2.10\n # rig 1\n\n") << QString();
        QTest::newRow("empty") << QByteArray() << QString();
    }

    void aHostIsTaken()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, host);
        const AdapterFile file = fileWith(text);
        QCOMPARE(file.host, host);
        QCOMPARE(file.mistake, QString());
    }

    void anythingElseIsAMistake_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("told");
        QTest::newRow("no host") << QByteArray("adapter=\n") << "\"\""_s;
        QTest::newRow("no IPv4 address") << QByteArray("adapter=192.0.2.300\n") << "\"192.0.2.300\""_s;
        QTest::newRow("half an address") << QByteArray("adapter=192.0.2\n") << "\"192.0.2\""_s;
        QTest::newRow("a port") << QByteArray("adapter=192.0.2.10:1234\n") << "\"192.0.2.10:1234\""_s;
        QTest::newRow("two hosts") << QByteArray("adapter=rig1,rig2\n") << "\"rig1,rig2\""_s;
        QTest::newRow("two words") << QByteArray("adapter=rig 1\n") << "\"rig 1\""_s;
        QTest::newRow("quotes") << QByteArray("adapter=\"rig1\"\n") << "\"rig1\""_s;
        QTest::newRow("full-width figures") << "adapter=１２７\n"_s.toUtf8() << "１２７"_s;
        QTest::newRow("a remark behind it") << QByteArray("adapter=rig1 ; old\n") << "rig1 ; old"_s;
        QTest::newRow("another key") << QByteArray("adaptor=192.0.2.10\n") << "adaptor=192.0.2.10"_s;
        QTest::newRow("upper case") << QByteArray("Adapter=192.0.2.10\n") << "Adapter="_s;
        QTest::newRow("one key too many") << QByteArray("adapter=rig1\nport=1235\n") << "port=1235"_s;
        QTest::newRow("two of them") << QByteArray("adapter=rig1\nadapter=rig2\n") << "adapter=rig2"_s;
        QTest::newRow("a section") << QByteArray("[Nelvo]\nadapter=rig1\n") << "[Nelvo]"_s;
        QTest::newRow("a host alone") << QByteArray("192.0.2.10\n") << "192.0.2.10"_s;
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                              "a\0d\0",
            6) << "not understood"_s;
    }

    void anythingElseIsAMistake()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, told);
        const AdapterFile file = fileWith(text);
        QCOMPARE(file.host, QString());
        QVERIFY2(file.mistake.contains(told), qPrintable(file.mistake));
        QVERIFY2(file.mistake.contains(".ini"_s), qPrintable(file.mistake));
    }

    void aFolderOfThatNameIsAMistake()
    {
        QVERIFY(QDir().mkpath("folder.ini"_s));
        QVERIFY(!readAdapterFile("folder.ini"_s).mistake.isEmpty());
    }
};

NELVO_TEST_MAIN(AdapterFileTest)
#include "adapterfile.moc"
