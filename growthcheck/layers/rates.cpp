#include "growthcheck/layers/rates.h"

#include "base/number.h"
#include "base/toolkittexts.h"
#include "growthcheck/check/likelynumber.h"
#include "growthcheck/check/words.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace GrowthCheck {

namespace {

constexpr int largestFile = 64 * 1024; // bytes
constexpr int longestLine = 1000; // characters
constexpr double fastest = 1000.0; // nm/s

// What a file in another encoding, or one that is no text, turns into.
bool isUnreadable(QChar character)
{
    return character == QChar::ReplacementCharacter || character.isNull();
}

// Takes in a file line by line.
class Intake
{
public:
    explicit Intake(Rates& target)
        : rates(target)
    {
    }

    // What is wrong with the line `number`, empty when nothing is.
    QString take(const QString& line, int number)
    {
        if (line.size() > longestLine) {
            return Words::tr("it has more than 1,000 characters");
        }
        if (std::any_of(line.begin(), line.end(), &isUnreadable)) {
            return Words::tr("some characters cannot be read; save the file as UTF-8");
        }
        const QStringList words
            = line.section(QLatin1Char('#'), 0, 0).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return words.isEmpty() ? QString() : takeRate(words, number);
    }

private:
    QString takeRate(const QStringList& words, int number)
    {
        const int shutter = channelNamed(words[0]);
        if (shutter < 0 || shutter >= Channels::shutterCount) {
            return Words::tr("%1 is not a source cell; these are: %2")
                .arg(quoted(words[0]), channelNames(Channels::shutterCount));
        }
        const auto at = static_cast<size_t>(shutter);
        if (lines.at(at) > 0) {
            return Words::tr("%1 has its rate in line %2 already")
                .arg(channelName(shutter), QString::number(lines.at(at)));
        }
        lines.at(at) = number;
        if (words.size() != 2) {
            return Words::tr("behind %1 stands one rate, and nothing else but a remark (#)")
                .arg(channelName(shutter));
        }
        const std::optional<double> rate = readNumber(words[1]);
        if (!rate || *rate < 0.0 || *rate > fastest) {
            return Words::tr("the rate of %1 is %2, where a number from 0 to 1000 nm/s is wanted.%3")
                .arg(channelName(shutter), quoted(words[1]), rate ? QString() : likelyNumberHint(words[1]));
        }
        rates.nmPerSec.at(at) = *rate;
        return {};
    }

    Rates& rates;
    std::array<int, Channels::shutterCount> lines{}; // where each cell's rate stands; 0 for none
};

} // namespace

QString readRates(const QString& fileName, Rates& rates)
{
    QFile file(fileName);
    // Anything but a plain file (a device, a pipe) might never end.
    const bool isPlain = QFileInfo(fileName).isFile();
    if (!isPlain || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return Words::tr("it is missing, no plain file, or not to be opened");
    }
    const QByteArray bytes = file.read(largestFile + 1);
    if (bytes.size() > largestFile) {
        return Words::tr("it is larger than 64 KiB");
    }
    if (file.error() != QFileDevice::NoError) {
        return errorText(file);
    }
    const QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    Intake intake(rates);
    for (int i = 0; i < lines.size(); ++i) {
        const QString wrong = intake.take(lines[i], i + 1);
        if (!wrong.isEmpty()) {
            return Words::tr("line %1: %2").arg(QString::number(i + 1), wrong);
        }
    }
    return {};
}

} // namespace GrowthCheck
