// A cell that follows its set point with a lag.

#include "simulator/thermalmodel.h"

#include "support/testmain.h"

#include <cmath>

using Chamber::ThermalModel;

namespace {

constexpr double tiny = 1e-9;

} // namespace

class ThermalModelTest : public QObject
{
    Q_OBJECT

private slots:
    void everythingRestsAtRoomTemperature()
    {
        const ThermalModel model(1);
        for (int cell = 0; cell < Channels::count; ++cell) {
            QCOMPARE(model.temperature(cell, 0.0), 25.0);
            QCOMPARE(model.temperature(cell, 1e6), 25.0);
            QCOMPARE(model.setPoint(cell), 25.0);
        }
    }

    void cellsRestApartWhenThatIsWanted()
    {
        const ThermalModel model(1, 111.0);
        QCOMPARE(model.temperature(0, 1e6), 25.0);
        QCOMPARE(model.temperature(8, 0.0), 913.0);
        QCOMPARE(model.setPoint(8), 913.0);
    }

    void cellsFollowWithTheirLag()
    {
        ThermalModel model(1);
        for (int cell = 0; cell < Channels::count; ++cell) {
            const double lagSec = cell < 7 ? 40.0 : 90.0;
            model.setSetPoint(cell, 125.0, 10.0);
            QCOMPARE(model.temperature(cell, 10.0), 25.0);
            for (const double lags : {0.5, 1.0, 2.0, 5.0}) {
                const double expected = 25.0 + 100.0 * (1.0 - std::exp(-lags));
                QVERIFY(qAbs(model.temperature(cell, 10.0 + lags * lagSec) - expected) < tiny);
            }
            QVERIFY(qAbs(model.temperature(cell, 1e6) - 125.0) < tiny);
        }
    }

    void howOftenOneLooksMakesNoDifference()
    {
        ThermalModel watched(1);
        ThermalModel left(1);
        watched.setSetPoint(0, 600.0, 0.0);
        left.setSetPoint(0, 600.0, 0.0);
        for (int step = 0; step < 1000; ++step) {
            watched.measure(0, step * 0.1);
        }
        QCOMPARE(watched.temperature(0, 100.0), left.temperature(0, 100.0));
    }

    void aNewSetPointGoesOnFromWhereTheCellIs()
    {
        ThermalModel model(1);
        model.setSetPoint(2, 500.0, 0.0);
        const double before = model.temperature(2, 30.0);
        model.setSetPoint(2, 100.0, 30.0);
        QCOMPARE(model.temperature(2, 30.0), before);
        QVERIFY(qAbs(model.temperature(2, 70.0) - (100.0 + (before - 100.0) * std::exp(-1.0))) < tiny);
    }

    void repeatingTheSetPointDisturbsNothing()
    {
        ThermalModel model(1);
        ThermalModel repeated(1);
        model.setSetPoint(0, 500.0, 0.0);
        for (int i = 0; i < 10; ++i) {
            repeated.setSetPoint(0, 500.0, i);
        }
        QVERIFY(qAbs(model.temperature(0, 20.0) - repeated.temperature(0, 20.0)) < tiny);
    }

    void cellsDoNotHeatEachOther()
    {
        ThermalModel model(1);
        model.setSetPoint(4, 900.0, 0.0);
        for (int cell = 0; cell < Channels::count; ++cell) {
            QCOMPARE(model.temperature(cell, 100.0) > 26.0, cell == 4);
        }
    }

    void timeNeverRunsBack()
    {
        ThermalModel model(1);
        model.setSetPoint(0, 500.0, 10.0);
        QCOMPARE(model.temperature(0, 5.0), 25.0);
    }

    void theNoiseIsAsLargeAsItShouldBe()
    {
        ThermalModel model(7);
        constexpr int count = 100000;
        double sum = 0.0;
        double squares = 0.0;
        double most = 0.0;
        for (int i = 0; i < count; ++i) {
            const double noise = model.measure(0, 0.0) - 25.0;
            sum += noise;
            squares += noise * noise;
            most = qMax(most, qAbs(noise));
        }
        QVERIFY(qAbs(sum / count) < 0.001);
        QVERIFY(qAbs(std::sqrt(squares / count) - 0.05) < 0.001);
        QVERIFY(most <= 0.3);
        QVERIFY(most > 0.15);
    }

    void theSeedDeterminesTheNoise()
    {
        ThermalModel one(42);
        ThermalModel same(42);
        ThermalModel other(43);
        bool differs = false;
        for (int i = 0; i < 100; ++i) {
            const double measured = one.measure(i % 9, i);
            QCOMPARE(same.measure(i % 9, i), measured);
            differs = other.measure(i % 9, i) != measured || differs;
        }
        QVERIFY(differs);
    }
};

NELVO_TEST_MAIN(ThermalModelTest)
#include "thermalmodel.moc"
