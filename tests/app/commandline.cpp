// What the program is asked for besides the language.

#include "app/commandline.h"

#include "support/testmain.h"

using namespace TestText;

Q_DECLARE_METATYPE(Task)

class CommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void theFirstTaskDecides_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<Task>("task");
        QTest::newRow("nothing") << "Nelvo"_s << Task::Station;
        QTest::newRow("a language") << "Nelvo -e"_s << Task::Station;
        QTest::newRow("anything else is ignored") << "Nelvo help -help --Help --helpme x"_s << Task::Station;
        QTest::newRow("help") << "Nelvo --help"_s << Task::Help;
        QTest::newRow("version, in English") << "Nelvo -e --version"_s << Task::Version;
        QTest::newRow("the first one") << "Nelvo --version --help"_s << Task::Version;
        QTest::newRow("check") << "Nelvo --check-pc"_s << Task::CheckPc;
        QTest::newRow("check for some seconds") << "Nelvo --check-pc=5"_s << Task::CheckPc;
        QTest::newRow("another check") << "Nelvo --check-pcs"_s << Task::Station;
        QTest::newRow("the program's own name") << "--help"_s << Task::Station;
    }

    void theFirstTaskDecides()
    {
        QFETCH(QString, line);
        QFETCH(Task, task);
        QCOMPARE(taskOf(line.split(u' ')), task);
    }

    void noArgumentsAtAllAreTheStation() { QCOMPARE(taskOf({}), Task::Station); }

    void aMinuteIsCheckedUnlessToldOtherwise()
    {
        QCOMPARE(checkedSeconds({"Nelvo"_s, "--check-pc"_s}), 60);
        QCOMPARE(checkedSeconds({"Nelvo"_s, "-e"_s, "--check-pc=1"_s}), 1);
        QCOMPARE(checkedSeconds({"Nelvo"_s, "--check-pc=3600"_s}), 3600);
        for (const QString& strange : {"0"_s, "-1"_s, "3601"_s, "x"_s, ""_s, "1.5"_s}) {
            QCOMPARE(checkedSeconds({"Nelvo"_s, "--check-pc="_s + strange}), 60);
        }
    }

    void everyOptionIsExplained()
    {
        for (const QString& option :
            {"-j "_s, "-e "_s, "--check-pc"_s, "--help"_s, "--version"_s, "NELVO_ADAPTER"_s, "nelvo.ini"_s}) {
            QVERIFY2(helpText().contains(option), qPrintable(option));
        }
        QCOMPARE(versionText(), "Nelvo " NELVO_VERSION "\n"_s);
    }
};

NELVO_TEST_MAIN(CommandLineTest)
#include "commandline.moc"
