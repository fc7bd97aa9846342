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

    void portIsFixed() { QCOMPARE(adapterPort, 1234); }
};

NELVO_TEST_MAIN(AdapterAddressTest)
#include "adapteraddress.moc"
