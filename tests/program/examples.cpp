// The programs of examples/ do what the texts beside them say.

#include "program/programfile.h"
#include "support/station.h"
#include "support/testmain.h"

#include <QDir>
#include <QTextStream>

using namespace TestText;

namespace {

// A chamber that follows its set points with a lag, seen on the panel only.
class LaggingChamber
{
public:
    explicit LaggingChamber(Station& theStation)
        : station(theStation)
    {
        setPoints.fill(25.0);
        values.fill(25.0);
    }

    void settle(qint64 ms)
    {
        for (int channel = 0; channel < Channels::count; ++channel) {
            double& setPoint = setPoints.at(static_cast<size_t>(channel));
            double& value = values.at(static_cast<size_t>(channel));
            if (station.isRamping(channel)) {
                setPoint = station.text(cell("TDeg", channel)).toDouble();
            }
            value += (setPoint - value) * qMin(1.0, static_cast<double>(ms) / 15000.0);
            station.find<QLabel>(cell("CDeg", channel)).setText(QString::number(value, 'f', 1));
        }
    }

private:
    Station& station;
    std::array<double, Channels::count> setPoints{};
    std::array<double, Channels::count> values{};
};

} // namespace

class ExamplesTest : public QObject
{
    Q_OBJECT

    const QDir folder{QStringLiteral(NELVO_EXAMPLES)};

private slots:
    void everyProgramIsExplained()
    {
        const QStringList programs = folder.entryList({"*.dat"_s});
        QCOMPARE(programs.size(), 5);
        for (QString name : programs) {
            QVERIFY(folder.exists(name.replace(".dat"_s, ".md"_s)));
        }
    }

    void everyLineIsAStep()
    {
        for (const QFileInfo& info : folder.entryInfoList({"*.dat"_s})) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
            const QString text = QString::fromLatin1(file.readAll());
            QString copy = text;
            QTextStream in(&copy);
            const QVector<ProgramStep> steps = ProgramFile::read(in, ProgramTab::rows);
            QString again;
            QTextStream out(&again);
            ProgramFile::write(out, steps);
            out.flush();
            QCOMPARE(again, text); // as the station itself would have saved it
        }
    }

    void programPlaysToItsEnd_data()
    {
        QTest::addColumn<QString>("total");
        QTest::addColumn<int>("starts");
        QTest::addColumn<int>("holds");
        QTest::newRow("superlattice.dat") << "  19.0"_s << 14 << 0;
        QTest::newRow("hold-point.dat") << "  91.0"_s << 5 << 1;
        QTest::newRow("doping-staircase.dat") << " 181.0"_s << 10 << 0;
        QTest::newRow("quantum-wells.dat") << "5327.6"_s << 20 << 1;
        QTest::newRow("graded-buffer.dat") << "6262.4"_s << 259 << 1;
    }

    void programPlaysToItsEnd()
    {
        QFETCH(QString, total);
        QFETCH(int, starts);
        QFETCH(int, holds);
        Station station;
        QVERIFY(station.open());
        ProgramTab& program = station.program();
        LaggingChamber chamber(station);
        chamber.settle(0);
        program.loadFile(folder.filePath(QLatin1String(QTest::currentDataTag())));
        program.click("Run");
        QCOMPARE(program.label("DispTTime02"), total);

        int started = 0;
        int held = 0;
        for (int i = 0; i < 100000 && program.isRunning(); ++i) {
            if (program.isWaiting()) {
                ++held;
                program.click("Pause");
            }
            program.tick(100);
            chamber.settle(100);
            QCOMPARE(station.statusBar(), QString()); // no ramp is refused
            if (program.isRunning() && program.label("DispTime01") == "0"_s) {
                ++started;
                const int row = program.marked().constFirst() - 1;
                for (int channel = 0; channel < Channels::count && program.time(row)->text().toDouble() > 0.0;
                     ++channel) {
                    QVERIFY(program.setPoint(row, channel)->text() == "0"_s || station.isRamping(channel));
                }
            }
        }
        QVERIFY(!program.isRunning());
        QCOMPARE(started, starts);
        QCOMPARE(held, holds);
        QTRY_COMPARE(station.masks().right(1), QByteArray(1, '\0')); // ends with every shutter closed
    }
};

NELVO_TEST_MAIN(ExamplesTest)
#include "examples.moc"
