#include "app/adapteraddress.h"

#include "support/testmain.h"

class AdapterAddressTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qunsetenv("NELVO_ADAPTER"); }

    void compiledAddressHoldsWithoutAnother();
    void emptyNameCountsAsNone();
    void environmentNamesAnotherHost();
    void portIsFixed();
};

void AdapterAddressTest::compiledAddressHoldsWithoutAnother()
{
    qunsetenv("NELVO_ADAPTER");
    QCOMPARE(adapterAddress(), QStringLiteral(NELVO_ADAPTER_ADDRESS));
}

void AdapterAddressTest::emptyNameCountsAsNone()
{
    qputenv("NELVO_ADAPTER", "");
    QCOMPARE(adapterAddress(), QStringLiteral(NELVO_ADAPTER_ADDRESS));
}

void AdapterAddressTest::environmentNamesAnotherHost()
{
    qputenv("NELVO_ADAPTER", "127.1.2.3");
    QCOMPARE(adapterAddress(), QStringLiteral("127.1.2.3"));
    qputenv("NELVO_ADAPTER", "rig2.lab");
    QCOMPARE(adapterAddress(), QStringLiteral("rig2.lab"));
}

void AdapterAddressTest::portIsFixed()
{
    QCOMPARE(adapterPort, 1234);
}

NELVO_TEST_MAIN(AdapterAddressTest)

#include "adapteraddress.moc"
