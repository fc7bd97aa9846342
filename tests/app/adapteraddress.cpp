// Which host the adapter is looked for at.

#include "app/adapteraddress.h"

#include "support/testmain.h"

using namespace TestText;

class AdapterAddressTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("NELVO_ADAPTER"); }

    void compiledAddressHoldsWithoutAnother()
    {
        qunsetenv("NELVO_ADAPTER");
        QCOMPARE(adapterAddress(), QStringLiteral(NELVO_ADAPTER_ADDRESS));
    }

    void emptyNameCountsAsNone()
    {
        qputenv("NELVO_ADAPTER", "");
        QCOMPARE(adapterAddress(), QStringLiteral(NELVO_ADAPTER_ADDRESS));
    }

    void environmentNamesAnotherHost()
    {
        qputenv("NELVO_ADAPTER", "127.1.2.3");
        QCOMPARE(adapterAddress(), "127.1.2.3"_s);
        qputenv("NELVO_ADAPTER", "rig2.lab");
        QCOMPARE(adapterAddress(), "rig2.lab"_s);
    }

    void aVariableThatIsNoHostIsAMistake()
    {
        qputenv("NELVO_ADAPTER", "rig2.lab");
        QCOMPARE(adapterMistake(), QString());
        for (const char* text : {"192.0.2.300", "rig 2", "127.0.0.1 ", "192.0.2.10:1234"}) {
            qputenv("NELVO_ADAPTER", text);
            QVERIFY2(adapterMistake().contains("NELVO_ADAPTER: \"%1\""_s.arg(QLatin1String(text))), text);
        }
    }

    void portIsFixed() { QCOMPARE(adapterPort, 1234); }
};

NELVO_TEST_MAIN(AdapterAddressTest)
#include "adapteraddress.moc"
