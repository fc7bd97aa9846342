#include "growthcheck/layers/rates.h"

#include "base/number.h"
#include "growthcheck/check/words.h"

#include <QFile>
#include <QStringList>

namespace GrowthCheck {

namespace {

constexpr int longestFile = 64 * 1024; // bytes
constexpr double fastest = 1000.0; // nm/s

int shutterOf(const QString& name)
{
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        if (name == QLatin1String(Channels::list[shutter].name)) {
            return shutter;
        }
    }
    return -1;
}

QString readLine(const QString& text, Rates& rates)
{
    const QStringList words = text.section(QLatin1Char('#'), 0, 0).simplified().split(QLatin1Char(' '));
    if (words == QStringList{QString()}) {
        return {};
    }
    const int shutter = shutterOf(words[0]);
    if (shutter < 0) {
        return Words::tr("%1 is not a source cell").arg(quoted(words[0]));
    }
    const std::optional<double> rate = words.size() == 2 ? readNumber(words[1]) : std::nullopt;
    if (!rate || *rate < 0.0 || *rate > fastest) {
        return Words::tr("a rate from 0 to 1000 nm/s is wanted behind %1").arg(quoted(words[0]));
    }
    rates.nmPerSec.at(static_cast<size_t>(shutter)) = *rate;
    return {};
}

} // namespace

QString readRates(const QString& fileName, Rates& rates)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return file.errorString();
    }
    const QStringList lines = QString::fromUtf8(file.read(longestFile)).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString wrong = readLine(lines[i], rates);
        if (!wrong.isEmpty()) {
            return Words::tr("line %1: %2").arg(QString::number(i + 1), wrong);
        }
    }
    return {};
}

} // namespace GrowthCheck
