// The examples, checked: nothing in them asks for a second look, and the layer tables beside them are those
// that growthcheck makes.

#include "growthcheck/support/checkrun.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QDir>

using namespace TestText;

class CheckedExamplesTest : public QObject
{
    Q_OBJECT

    const QDir folder{QStringLiteral(NELVO_EXAMPLES)};

private slots:
    void noneHasAWarning_data()
    {
        QTest::addColumn<QString>("fileName");
        for (const QString& name : folder.entryList({"*.dat"_s})) {
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
        }
    }

    void noneHasAWarning()
    {
        QFETCH(QString, fileName);
        const CheckRun run = runCheck({"--start-all"_s, "25"_s, fileName});
        QVERIFY2(run.status == 0, run.out.constData());
    }

    void theLayerTablesAreThose_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quantum wells") << "quantum-wells"_s;
        QTest::newRow("graded buffer") << "graded-buffer"_s;
    }

    void theLayerTablesAreThose()
    {
        QFETCH(QString, name);
        const CheckRun run = runCheck({"--start-all"_s, "25"_s, "--layers"_s, folder.filePath("RATES.txt"_s),
            folder.filePath(name + ".dat"_s)});
        const QByteArray table = run.out.mid(run.out.indexOf("Layers, from the substrate up"));
        QVERIFY(table.contains(" nm"));
        QVERIFY(fileText(folder.filePath(name + ".md"_s)).contains("```\n" + table + "```\n"));
    }
};

NELVO_TEST_MAIN(CheckedExamplesTest)
#include "checkedexamples.moc"
