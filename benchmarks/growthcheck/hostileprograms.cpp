#include "benchmarks/growthcheck/hostileprograms.h"

namespace {

constexpr int largestFile = 16 * 1024 * 1024;
constexpr int rows = 200;

// A row with the set point `setPoint` for all channels.
QByteArray row(
    const QByteArray& setPoint, const QByteArray& time, const QByteArray& group, const QByteArray& times)
{
    QByteArray line = "0";
    for (int channel = 0; channel < 9; ++channel) {
        line += '\t' + setPoint;
    }
    return line + "\t1\t0\t1\t0\t1\t0\t1\t" + time + '\t' + group + '\t' + times + '\n';
}

QByteArray filled(const QByteArray& piece)
{
    return piece.repeated(largestFile / piece.size());
}

QByteArray changingGroups(const QByteArray& time, const QByteArray& times)
{
    QByteArray text;
    for (int number = 0; number < rows; ++number) {
        const QByteArray setPoint = number % 2 == 0 ? "20.1" : "20.2";
        text += row(setPoint, time, "G" + QByteArray::number(number / 2), times);
    }
    return text;
}

} // namespace

QVector<HostileProgram> hostilePrograms()
{
    const QByteArray wide(60000, 'x');
    return {
        {"16 MiB of NUL", QByteArray(largestFile, '\0')},
        {"16 MiB in one line", QByteArray(largestFile, 'a')},
        {"16 MiB of line ends", QByteArray(largestFile, '\n')},
        {"16 MiB of short lines", filled("1 2 3\n\n")},
        {"16 MiB of steps", filled(row("850", "10", "A", "3"))},
        {"16 MiB of wide set points", filled(row("850", "10", wide, "3"))},
        {"16 MiB of bad bytes", filled("\xff\xfe\x80 ")},
        {"every group 2147483647 times", changingGroups("0.5", "2147483647")},
        {"every group 2147483647 times, ramps that never fold", changingGroups("61.7", "2147483647")},
        {"a step of 1e12 s with nine ramps", row("9999", "1e12", "A", "1")},
        {"level ramps for 1e9 s", row("25", "1e9", "A", "2147483647")},
        {"steps of a hundredth", changingGroups("0.01", "100000")},
    };
}

QByteArray ordinaryProgram()
{
    QByteArray text = row("90", "600", "---NoGroup---", "1");
    for (int number = 1; number < rows - 1; ++number) {
        text += row("0", "12.5", "Well" + QByteArray::number(number / 4), "20");
    }
    return text + row("30", "600", "---NoGroup---", "1");
}
