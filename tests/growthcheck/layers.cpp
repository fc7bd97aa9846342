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
        QTest::newRow("infinite") << QByteArray("\nGa inf\n");
        QTest::newRow("not a number") << QByteArray("\nGa nan\n");
        QTest::newRow("too large for a number") << QByteArray("\nGa 1e999\n");
        QTest::newRow("full-width digits") << QByteArray("\nGa ０．２８\n");
        QTest::newRow("a unit") << QByteArray("\nGa 0.28nm/s\n");
        QTest::newRow("twice") << QByteArray("Ga 0.1\nGa 0.1\n");
        QTest::newRow("twice in other letters") << QByteArray("Ga 0.1\nga 0.2\n");
        QTest::newRow("a long line") << "\n# " + QByteArray(999, 'x') + '\n';
        QTest::newRow("another encoding") << QByteArray("Ga 0.1\n# \x90\xac\x92\xb7\n");
        QTest::newRow("zeros") << QByteArray("\nA\0l 0.1\n", 9);
    }

    void whatIsWrongWithRatesIsTold()
    {
        QFETCH(QByteArray, text);
        putFile("RATES.txt"_s, text);
        Rates rates;
        const QString wrong = readRates("RATES.txt"_s, rates);
        QVERIFY2(wrong.startsWith("line 2: "_s), qPrintable(wrong));
    }

    void aWrongRateIsNamed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("wrong");
        const QString wanted = "where a number from 0 to 1000 nm/s is wanted."_s;
        QTest::newRow("no cell") << QByteArray("Xe 1")
                                 << "\"Xe\" is not a source cell; these are: Be, Ga, Si, As4, Al, In, As7"_s;
        QTest::newRow("twice") << QByteArray("Ga 1\n\nGa 2") << "Ga has its rate in line 1 already"_s;
        QTest::newRow("a comma") << QByteArray("Ga 0,28")
                                 << "the rate of Ga is \"0,28\", "_s + wanted + " Is it 0.28?"_s;
        QTest::newRow("full-width digits")
            << QByteArray("Ga ０．２８") << "the rate of Ga is \"０．２８\", "_s + wanted + " Is it 0.28?"_s;
        QTest::newRow("below zero") << QByteArray("Ga -1") << "the rate of Ga is \"-1\", "_s + wanted;
        QTest::newRow("no rate") << QByteArray("Ga # 0.1")
                                 << "behind Ga stands one rate, and nothing else but a remark (#)"_s;
    }

    void aWrongRateIsNamed()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, wrong);
        putFile("RATES.txt"_s, text);
        Rates rates;
        QCOMPARE(readRates("RATES.txt"_s, rates).section(": "_s, 1), wrong);
    }

    void ratesAreReadAsEditorsWriteThem()
    {
        putFile("RATES.txt"_s, "\xEF\xBB\xBFga 0.28 # nm/s\r\n\r\n　Ａｌ　0.12\r\n# " + QByteArray(998, 'x'));
        Rates rates;
        QCOMPARE(readRates("RATES.txt"_s, rates), QString());
        QCOMPARE(rates.nmPerSec[1], 0.28);
        QCOMPARE(rates.nmPerSec[4], 0.12);
    }

    // A file that is cut could end within a number.
    void aLargeFileIsRefused()
    {
        const QByteArray remark = '#' + QByteArray(62, 'x') + '\n';
        const QByteArray rate("Ga 0.28\n");
        const QByteArray most = remark.repeated(1023) + QByteArray(64 - rate.size(), '\n') + rate;
        Rates rates;
        putFile("RATES.txt"_s, most);
        QCOMPARE(readRates("RATES.txt"_s, rates), QString());
        QCOMPARE(rates.nmPerSec[1], 0.28);
        putFile("RATES.txt"_s, '\n' + most);
        QCOMPARE(readRates("RATES.txt"_s, rates), "it is larger than 64 KiB"_s);
    }

    void noFileIsNoRates()
    {
        Rates rates;
        for (const char* name : {"absent.txt", ".", "/dev/zero"}) {
            QVERIFY2(readRates(QLatin1String(name), rates).startsWith("it is missing"_s), name);
        }
    }
};

NELVO_TEST_MAIN(LayersTest)
#include "layers.moc"
