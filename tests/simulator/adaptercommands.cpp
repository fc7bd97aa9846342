// The adapter's own commands, those that begin with "++".

#include "simulator/adapter.h"

#include "support/testmain.h"

using Chamber::Adapter;

class AdapterCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void aCommandWithoutAValueAnswersThePresentOne_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("atFirst");
        QTest::addColumn<QByteArray>("highest");
        QTest::newRow("addr") << QByteArray("++addr") << QByteArray("0") << QByteArray("30");
        QTest::newRow("eos") << QByteArray("++eos") << QByteArray("0") << QByteArray("3");
        QTest::newRow("eoi") << QByteArray("++eoi") << QByteArray("1") << QByteArray("1");
        QTest::newRow("auto") << QByteArray("++auto") << QByteArray("0") << QByteArray("1");
    }

    void aCommandWithoutAValueAnswersThePresentOne()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, atFirst);
        QFETCH(QByteArray, highest);
        Adapter adapter;
        QCOMPARE(adapter.command(name).answer, atFirst);
        const Adapter::CommandResult set = adapter.command(name + ' ' + highest);
        QVERIFY(set.understood);
        QCOMPARE(set.answer, QByteArray());
        QCOMPARE(adapter.command(name).answer, highest);
        QVERIFY(adapter.command(name + " 0").understood);
        QCOMPARE(adapter.command(name).answer, QByteArray("0"));
    }

    void whatIsNotUnderstoodChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("line");
        const char* const lines[] = {"++", "++frobnicate", "++ADDR 3", "++addr3", "++addr 31", "++addr -1",
            "++addr x", "++addr 3 4", "++eos 4", "++eos -2", "++eoi 2", "++auto 2", "++auto 1.0",
            "++addr 99999999999999999999"};
        for (const char* line : lines) {
            QTest::newRow(line) << QByteArray(line);
        }
        QTest::newRow("a very long one") << "++addr " + QByteArray(1000000, '0');
    }

    void whatIsNotUnderstoodChangesNothing()
    {
        QFETCH(QByteArray, line);
        Adapter adapter;
        adapter.command("++addr 7");
        const Adapter::CommandResult result = adapter.command(line);
        QVERIFY(!result.understood);
        QCOMPARE(result.answer, QByteArray());
        QCOMPARE(adapter.command("++addr").answer, QByteArray("7"));
        QCOMPARE(adapter.command("++eos").answer, QByteArray("0"));
        QCOMPARE(adapter.command("++eoi").answer, QByteArray("1"));
        QCOMPARE(adapter.command("++auto").answer, QByteArray("0"));
    }

    void theEndOfStringModeIsAppended()
    {
        Adapter adapter;
        QCOMPARE(adapter.message("m").bytes, QByteArray("m\r\n"));
        adapter.command("++eos 1");
        QCOMPARE(adapter.message("m").bytes, QByteArray("m\r"));
        adapter.command("++eos 2");
        QCOMPARE(adapter.message("m").bytes, QByteArray("m\n"));
        adapter.command("++eos 3");
        QCOMPARE(adapter.message("m").bytes, QByteArray("m"));
    }

    void theEoiModeIsPassedOn()
    {
        Adapter adapter;
        QVERIFY(adapter.message("m").eoi);
        adapter.command("++eoi 0");
        QVERIFY(!adapter.message("m").eoi);
        adapter.command("++eoi 1");
        QVERIFY(adapter.message("m").eoi);
    }
};

NELVO_TEST_MAIN(AdapterCommandsTest)
#include "adaptercommands.moc"
