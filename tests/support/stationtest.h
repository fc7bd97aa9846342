#pragma once

#include "support/station.h"

#include <QtTest>

#include <memory>

/// A test with a station of its own for each of its functions, which opens the window when all is prepared.
class StationTest : public QObject
{
    Q_OBJECT

protected:
    ProgramTab& program() const { return station->program(); }

    std::unique_ptr<Station> station;

protected slots:
    void init() { station = std::make_unique<Station>(); }
    void cleanup() { station.reset(); }
};

/// The same with the window open already, its opening bytes taken off the wire.
class OpenStationTest : public StationTest
{
    Q_OBJECT

protected slots:
    void init()
    {
        StationTest::init();
        QVERIFY(station->open());
    }
};

/// The same for tests of which each takes all that comes: what a test leaves on the wire, it did not ask for.
class QuietStationTest : public OpenStationTest
{
    Q_OBJECT

protected slots:
    void cleanup()
    {
        const bool isQuiet = QTest::currentTestFailed() || station->adapter.expectNothing();
        OpenStationTest::cleanup();
        QVERIFY(isQuiet);
    }
};

/// A test with one open window for all its functions, since building it is the larger part of each: they
/// leave it as they found it or set up all that they rely on.
class SharedStationTest : public StationTest
{
    Q_OBJECT

protected slots:
    void initTestCase()
    {
        StationTest::init();
        QVERIFY(station->open());
    }
    void cleanupTestCase() { StationTest::cleanup(); }

    void init() { }
    void cleanup() { }
};
