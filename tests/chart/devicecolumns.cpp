#include "chart/devicecolumns.h"
#include "support/testmain.h"

#include <random>

class DeviceColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void strokesFillJustWhatWasAdded_data();
    void strokesFillJustWhatWasAdded();
    void coversAndSharedRowsTellOnlyWhatIsFilled();
    void whatIsSharedAtTheEdgeOfSightIsSharedBeyond();
    void nothingOutOfSightIsKept();
    void manyTallColumnsBecomeFewStrokes();
    void anEmptySightKeepsNothing();
};

namespace {

const QRect sight(20, 10, 60, 50);

using Pixels = QVector<bool>;

int indexOf(int x, int y)
{
    return (y - sight.top()) * sight.width() + x - sight.left();
}

void fill(Pixels& pixels, const QRect& rect)
{
    const QRect seen = rect & sight;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            pixels[indexOf(x, y)] = true;
        }
    }
}

Pixels none()
{
    return Pixels(sight.width() * sight.height(), false);
}

Pixels filledBy(const DeviceStrokes& strokes)
{
    Pixels pixels = none();
    for (const QLine& line : strokes.lines) {
        fill(pixels, QRect(line.p1(), line.p2()));
    }
    for (const QRect& rect : strokes.fills) {
        fill(pixels, rect);
    }
    return pixels;
}

bool isFilled(const Pixels& pixels, const QRect& rect)
{
    const QRect seen = rect & sight;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            if (!pixels.at(indexOf(x, y))) {
                return false;
            }
        }
    }
    return true;
}

// Rectangles of random places and sizes, some of them out of sight.
struct Random
{
    std::mt19937 engine;

    int within(int low, int high)
    {
        return low + static_cast<int>(engine() % static_cast<unsigned>(high - low + 1));
    }
    PixelSpan columns(int widest)
    {
        const int first = within(15, 84);
        return {first, first + within(0, widest - 1)};
    }
    PixelSpan rows(int tallest)
    {
        const int first = within(-20, 70);
        return {first, first + within(0, tallest - 1)};
    }
};

QRect rectangle(const PixelSpan& columns, const PixelSpan& rows)
{
    return QRect(QPoint(columns.first, rows.first), QPoint(columns.last, rows.last));
}

} // namespace

void DeviceColumnsTest::strokesFillJustWhatWasAdded_data()
{
    QTest::addColumn<int>("tallest");
    QTest::newRow("dots") << 2;
    QTest::newRow("short") << 9;
    QTest::newRow("tall") << 60;
}

void DeviceColumnsTest::strokesFillJustWhatWasAdded()
{
    QFETCH(int, tallest);
    Random random{std::mt19937(4)};
    for (int go = 0; go < 200; ++go) {
        DeviceColumns columns(sight);
        Pixels added = none();
        const int count = random.within(0, 120);
        for (int i = 0; i < count; ++i) {
            const PixelSpan x = random.columns(go % 2 == 0 ? 2 : 20);
            const PixelSpan y = random.rows(tallest);
            columns.add(x, y);
            fill(added, rectangle(x, y));
        }
        QCOMPARE(filledBy(columns.strokes()), added);
    }
}

void DeviceColumnsTest::coversAndSharedRowsTellOnlyWhatIsFilled()
{
    Random random{std::mt19937(9)};
    int covered = 0;
    int shared = 0;
    for (int go = 0; go < 100; ++go) {
        DeviceColumns columns(sight);
        for (int i = 0; i < 60; ++i) {
            columns.add(random.columns(20), random.rows(60));
        }
        const Pixels pixels = filledBy(columns.strokes());
        for (int i = 0; i < 50; ++i) {
            const PixelSpan x = random.columns(4);
            const PixelSpan y = random.rows(10);
            if (columns.covers(x, y)) {
                ++covered;
                QVERIFY(isFilled(pixels, rectangle(x, y)));
            }
            const PixelSpan rows = columns.sharedRows(x);
            if (!rows.isEmpty()) {
                ++shared;
                QVERIFY(isFilled(pixels, rectangle(x, rows)));
            }
        }
    }
    QVERIFY(covered > 500 && shared > 500);

    DeviceColumns plain(sight);
    plain.add({30, 32}, {20, 40});
    QVERIFY(plain.covers({30, 32}, {20, 40}));
    QVERIFY(!plain.covers({30, 33}, {20, 40}));
    QVERIFY(!plain.covers({30, 32}, {19, 40}));
    QCOMPARE(plain.sharedRows({30, 32}).first, 20);
    QCOMPARE(plain.sharedRows({30, 32}).last, 40);
}

void DeviceColumnsTest::whatIsSharedAtTheEdgeOfSightIsSharedBeyond()
{
    DeviceColumns columns(sight);
    columns.add({30, 32}, {-5, 20});
    QVERIFY(columns.sharedRows({30, 32}).first < -1000000);
    QCOMPARE(columns.sharedRows({30, 32}).last, 20);
    columns.add({30, 32}, {10, 5000});
    QVERIFY(columns.sharedRows({30, 32}).last > 1000000);
    // No columns share everything.
    QVERIFY(columns.sharedRows({30, 29}).contains({-1000000, 1000000}));
}

void DeviceColumnsTest::nothingOutOfSightIsKept()
{
    DeviceColumns columns(sight);
    columns.add({0, 19}, {0, 100});
    columns.add({80, 90}, {0, 100});
    columns.add({0, 90}, {0, 9});
    columns.add({0, 90}, {60, 100});
    const DeviceStrokes strokes = columns.strokes();
    QVERIFY(strokes.lines.isEmpty() && strokes.fills.isEmpty());
    QVERIFY(columns.covers({30, 40}, {-20, 9}));
}

void DeviceColumnsTest::manyTallColumnsBecomeFewStrokes()
{
    const QRect wide(0, 0, 1000, 500);
    DeviceColumns columns(wide);
    for (int x = 0; x < 1000; ++x) {
        columns.add({x, x}, {100 + x % 7, 300 - x % 5});
    }
    const DeviceStrokes strokes = columns.strokes();
    QVERIFY(strokes.fills.size() <= 1000 / 32 + 1);
    for (const QLine& line : strokes.lines) {
        QVERIFY(line.y2() - line.y1() < 7);
    }
}

void DeviceColumnsTest::anEmptySightKeepsNothing()
{
    for (const QRect& nowhere : {QRect(), QRect(5, 5, 0, 10), QRect(QPoint(9, 3), QPoint(2, 1))}) {
        DeviceColumns columns(nowhere);
        columns.add({0, 100}, {0, 100});
        const DeviceStrokes strokes = columns.strokes();
        QVERIFY(strokes.lines.isEmpty() && strokes.fills.isEmpty());
    }
}

NELVO_TEST_MAIN(DeviceColumnsTest)
#include "devicecolumns.moc"
