#include "program/programwindow.h"

#include "program/programfile.h"
#include "support/testmain.h"

#include <QDir>
#include <QStatusBar>
#include <QTextStream>

namespace {

// A chamber that follows its set points with a lag, seen on the panel only.
class LaggingChamber
{
public:
    explicit LaggingChamber(ProgramWindow& station)
        : table(station)
    {
        setPoints.fill(25.0);
        values.fill(25.0);
    }

    void settle(qint64 ms)
    {
        for (int ch = 0; ch < 9; ++ch) {
            const auto i = static_cast<size_t>(ch);
            if (isRamping(ch)) {
                setPoints.at(i) = table.edit("TDeg0" + QByteArray::number(ch + 1))->text().toDouble();
            }
            const double share = qMin(1.0, static_cast<double>(ms) / 15000.0);
            values.at(i) += (setPoints.at(i) - values.at(i)) * share;
            table.window()
                .findChild<QLabel*>(QStringLiteral("CDeg0%1").arg(ch + 1))
                ->setText(QString::number(values.at(i), 'f', 1));
        }
    }

    bool isRamping(int ch)
    {
        return table.button("RunT0" + QByteArray::number(ch + 1))->text() == QLatin1String("Stop");
    }

private:
    ProgramWindow& table;
    std::array<double, 9> setPoints{};
    std::array<double, 9> values{};
};

} // namespace

/// The programs of examples/ do what the texts beside them say.
class TestExamples : public QObject
{
    Q_OBJECT

private slots:
    void everyProgramIsExplained();
    void everyLineIsAStep();
    void programPlaysToItsEnd_data();
    void programPlaysToItsEnd();

private:
    const QDir folder{QStringLiteral(NELVO_EXAMPLES)};
};

void TestExamples::everyProgramIsExplained()
{
    const QStringList programs = folder.entryList({QStringLiteral("*.dat")});
    QCOMPARE(programs.size(), 3);
    for (QString name : programs) {
        QVERIFY(folder.exists(name.replace(QStringLiteral(".dat"), QStringLiteral(".md"))));
    }
}

void TestExamples::everyLineIsAStep()
{
    for (const QFileInfo& info : folder.entryInfoList({QStringLiteral("*.dat")})) {
        QFile file(info.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QString text = QString::fromLatin1(file.readAll());
        QString copy = text;
        QTextStream in(&copy);
        const QVector<ProgramStep> steps = ProgramFile::read(in, 200);
        QString again;
        QTextStream out(&again);
        ProgramFile::write(out, steps);
        out.flush();
        QCOMPARE(again, text); // as the station itself would have saved it
    }
}

void TestExamples::programPlaysToItsEnd_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("total");
    QTest::addColumn<int>("starts");
    QTest::addColumn<int>("holds");
    QTest::newRow("superlattice") << "superlattice.dat"
                                  << "  19.0" << 14 << 0;
    QTest::newRow("hold point") << "hold-point.dat"
                                << "  91.0" << 5 << 1;
    QTest::newRow("doping staircase") << "doping-staircase.dat"
                                      << " 181.0" << 10 << 0;
}

void TestExamples::programPlaysToItsEnd()
{
    QFETCH(QString, name);
    QFETCH(QString, total);
    QFETCH(int, starts);
    QFETCH(int, holds);

    ProgramWindow table;
    LaggingChamber chamber(table);
    chamber.settle(0);
    QVERIFY(QMetaObject::invokeMethod(&table.window(), "APLoadProg", Q_ARG(QString, folder.filePath(name))));
    table.button("ProgRun")->click();
    QCOMPARE(table.label("DispTTime02"), total);

    int started = 0;
    int held = 0;
    for (int i = 0; i < 100000 && table.isRunning(); ++i) {
        if (table.isWaiting()) {
            ++held;
            table.button("ProgPause")->click();
        }
        table.tick(100);
        chamber.settle(100);
        QCOMPARE(table.window().statusBar()->currentMessage(), QString()); // no ramp is refused
        if (table.isRunning() && table.label("DispTime01") == QLatin1String("0")) {
            ++started;
            const int row = table.marked().constFirst() - 1;
            for (int ch = 0; ch < 9 && table.time(row)->text().toDouble() > 0.0; ++ch) {
                QVERIFY(table.setPoint(row, ch)->text() == QLatin1String("0") || chamber.isRamping(ch));
            }
        }
    }
    QVERIFY(!table.isRunning());
    QCOMPARE(started, starts);
    QCOMPARE(held, holds);
    QTRY_COMPARE(table.masks().right(1), QByteArray(1, '\0')); // ends with every shutter closed
}

NELVO_TEST_MAIN(TestExamples)
#include "examples.moc"
