#include "chart/support/chartdata.h"

#include "temperature/recordline.h"

#include <QHash>

#include <cmath>
#include <functional>
#include <random>

namespace ChartData {

namespace {

struct Maker
{
    int channel;
    int count;
    double lengthSec;
    std::mt19937 random;

    double sec(int i) const { return count < 2 ? lengthSec / 2 : lengthSec * i / (count - 1); }
    double uniform(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(random()) / 4294967296.0);
    }
};

using Make = std::function<QPointF(Maker&, int)>;

QPointF waveform(Maker& maker, int i)
{
    return {maker.sec(i), Record::value(maker.channel, maker.sec(i))};
}

// White, in the band of the channel's waveform.
QPointF noise(Maker& maker, int i)
{
    const double centre = 500.0 - 30 * maker.channel;
    const double reach = 50 + 10 * maker.channel;
    return {maker.sec(i), maker.uniform(centre - reach, centre + reach)};
}

QPointF steps(Maker& maker, int i)
{
    return {maker.sec(i), 100.0 + 60.0 * maker.channel + 90.0 * ((i / 97) % 5)};
}

QPointF spikes(Maker& maker, int i)
{
    const bool spike = maker.random() % 50 == 0;
    return {maker.sec(i), 300.0 + 5.0 * maker.channel + (spike ? maker.uniform(-900.0, 900.0) : 0.0)};
}

QPointF constant(Maker& maker, int i)
{
    return {maker.sec(i), 250.0 + 40.0 * maker.channel};
}

// Runs of the very same point, and of the same second.
QPointF duplicates(Maker& maker, int i)
{
    const double sec = maker.sec(i - i % 7);
    const double value = 400.0 + 150.0 * std::sin(0.01 * (i - i % 3)) + maker.channel;
    return {sec, value};
}

// Gentle slopes: many neighbours share a pixel.
QPointF slow(Maker& maker, int i)
{
    return {maker.sec(i), 500.0 + 300.0 * std::sin(maker.sec(i) / 400.0 + maker.channel)};
}

// Far outside of the picture, yet on pixels that an int can hold.
QPointF farAway(Maker& maker, int i)
{
    const double far = maker.random() % 3 == 0 ? 2e6 : 400.0;
    return {maker.sec(i), maker.uniform(-far, far)};
}

QPointF clockBack(Maker& maker, int i)
{
    const double back = (i / 200) % 2 == 1 ? maker.lengthSec * 0.11 : 0.0;
    return {maker.sec(i) - back, Record::value(maker.channel, maker.sec(i))};
}

QPointF unevenPace(Maker& maker, int i)
{
    const double part = maker.sec(i) / maker.lengthSec;
    return {maker.lengthSec * part * part * part, maker.uniform(100.0, 800.0)};
}

const QHash<QString, Make>& makers()
{
    static const QHash<QString, Make> table{{QStringLiteral("waveform"), waveform},
        {QStringLiteral("noise"), noise}, {QStringLiteral("steps"), steps},
        {QStringLiteral("spikes"), spikes}, {QStringLiteral("constant"), constant},
        {QStringLiteral("duplicates"), duplicates}, {QStringLiteral("slow"), slow},
        {QStringLiteral("far away"), farAway}, {QStringLiteral("clock back"), clockBack},
        {QStringLiteral("uneven pace"), unevenPace}};
    return table;
}

} // namespace

QStringList kinds()
{
    QStringList names = makers().keys();
    names.sort();
    return names;
}

QVector<QPointF> points(const QString& kind, int channel, int count, double lengthSec)
{
    Maker maker{channel, count, lengthSec, std::mt19937(static_cast<unsigned>(channel + 1))};
    const Make make = makers().value(kind);
    QVector<QPointF> series;
    series.reserve(count);
    for (int i = 0; i < count; ++i) {
        series.append(make(maker, i));
    }
    return series;
}

} // namespace ChartData
