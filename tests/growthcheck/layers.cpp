// What a program grows: rates, materials, layers and their sums.

#include "growthcheck/check/check.h"
#include "growthcheck/layers/material.h"
#include "growthcheck/support/programtext.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

using namespace TestText;
using namespace GrowthCheck;

namespace {

// Ga 0.28, Al 0.12, In 0.1 nm/s.
Rates usualRates()
{
    Rates rates;
    rates.nmPerSec[1] = 0.28;
    rates.nmPerSec[4] = 0.12;
    rates.nmPerSec[5] = 0.1;
    return rates;
}

QVector<bool> openShutters(const QString& letters)
{
    QVector<bool> open;
    for (const QChar letter : letters) {
        open.append(letter == u'o');
    }
    return open;
}

LayerTable layersOf(const QStringList& program)
{
    putFile("program.dat"_s, programText(program));
    return *checkProgram(*loadProgram("program.dat"_s), {}, usualRates()).layers;
}

QStringList blockTexts(const LayerTable& table)
{
    QStringList texts;
    for (const LayerBlock& block : table.blocks) {
        texts.append(block.text());
    }
    return texts;
}

} // namespace

class LayersTest : public QObject
{
    Q_OBJECT

private slots:
    void aMaterialIsNamedByItsOpenCells_data()
    {
        QTest::addColumn<QString>("shutters"); // Be Ga Si As4 Al In As7
        QTest::addColumn<QString>("material");
        QTest::newRow("none") << "xxxxxxx"_s << QString();
        QTest::newRow("arsenic") << "xxxoxxx"_s << QString();
        QTest::newRow("GaAs") << "xoxoxxx"_s
                              << "GaAs"_s;
        QTest::newRow("both arsenic cells") << "xoxoxxo"_s
                                            << "GaAs"_s;
        QTest::newRow("AlGaAs") << "xoxooxx"_s
                                << "Al0.30Ga0.70As"_s;
        QTest::newRow("doped") << "xooxxxo"_s
                               << "GaAs:Si"_s;
        QTest::newRow("twice") << "ooooooo"_s
                               << "In0.20Al0.24Ga0.56As:Be,Si"_s;
        QTest::newRow("without arsenic") << "xoxxxxx"_s
                                         << "Ga"_s;
        QTest::newRow("a dopant alone") << "xxooxxx"_s << QString();
    }

    void aMaterialIsNamedByItsOpenCells()
    {
        QFETCH(QString, shutters);
        QFETCH(QString, material);
        QCOMPARE(materialOf(openShutters(shutters), usualRates()), material);
    }

    void aLayerIsAsThickAsItsStepIsLong()
    {
        const LayerTable table = layersOf({"t=9.99 open=Ga,As4"_s, "t=3.99 open=Ga,Al,As4"_s, "t=1"_s});
        QCOMPARE(table.blocks.size(), 1);
        QCOMPARE(table.blocks[0].layers.size(), 3);
        QCOMPARE(table.blocks[0].layers[0].timeMs, 10000);
        QCOMPARE(table.blocks[0].layers[0].nm, 2.8);
        QCOMPARE(table.blocks[0].layers[1].nm, 1.6);
        QCOMPARE(table.blocks[0].layers[2].nm, 0.0);
        QCOMPARE(table.totalNm, 4.4);
        QCOMPARE(table.nmByMaterial.value("GaAs"_s), 2.8);
        QCOMPARE(table.composition, "Al0.11Ga0.89"_s);
        QCOMPARE(blockTexts(table), QStringList({"GaAs 2.80 nm / Al0.30Ga0.70As 1.60 nm"_s}));
    }

    void repeatsAreFolded()
    {
        const LayerTable table
            = layersOf({"t=2 open=As4"_s, "t=9.99 open=Ga,As4 g=A x=2000000000"_s, "t=0.99 open=As4 g=A"_s,
                "t=9.99 open=Ga,As4 g=A"_s, "t=9.99 open=Al,As4 g=A"_s, "t=9.99 open=Ga,As4 g=B"_s});
        QCOMPARE(blockTexts(table),
            QStringList({QString(), "2000000000 x [GaAs 5.60 nm / AlAs 1.20 nm]"_s, "GaAs 2.80 nm"_s}));
        QCOMPARE(table.blocks[1].passes, 2000000000);
        QCOMPARE(table.nmByMaterial.value("AlAs"_s), 1.2 * 2e9);
    }

    void ratesAreRead()
    {
        putFile("RATES.txt"_s, "# nm/s\n\nGa 0.28 # at 950\n  Al\t1.2e-1\nIn 0\n");
        Rates rates;
        QCOMPARE(readRates("RATES.txt"_s, rates), QString());
        QCOMPARE(rates.nmPerSec[1], 0.28);
        QCOMPARE(rates.nmPerSec[4], 0.12);
        QCOMPARE(rates.nmPerSec[5], 0.0);
    }

    void whatIsWrongWithRatesIsTold_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no cell") << QByteArray("Ga 0.1\nXe 0.1\n");
        QTest::newRow("a substrate") << QByteArray("\nMain 0.1\n");
        QTest::newRow("no number") << QByteArray("\nGa 0,1\n");
        QTest::newRow("no rate") << QByteArray("\nGa\n");
        QTest::newRow("too much") << QByteArray("\nGa 0.1 0.2\n");
        QTest::newRow("below zero") << QByteArray("\nGa -1\n");
        QTest::newRow("a micrometre a second") << QByteArray("\nGa 1001\n");
    }

    void whatIsWrongWithRatesIsTold()
    {
        QFETCH(QByteArray, text);
        putFile("RATES.txt"_s, text);
        Rates rates;
        const QString wrong = readRates("RATES.txt"_s, rates);
        QVERIFY2(wrong.startsWith("line 2: "_s), qPrintable(wrong));
    }

    void noFileIsNoRates()
    {
        Rates rates;
        QVERIFY(!readRates("absent.txt"_s, rates).isEmpty());
    }
};

NELVO_TEST_MAIN(LayersTest)
#include "layers.moc"
