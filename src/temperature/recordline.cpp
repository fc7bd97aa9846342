#include "temperature/recordline.h"

#include <QTextStream>

#include <cmath>

namespace Record {

double value(int channel, double elapsedSec)
{
    const double phase = elapsedSec / 60.0 * 3.14;
    return std::sin((0.2 * channel + 1.0) * phase) * (50 + 10 * channel) + 500.0 - 30 * channel;
}

QByteArray line(double elapsedSec, const QVector<double>& values)
{
    QByteArray text;
    QTextStream stream(&text);
    stream << elapsedSec;
    for (const double value : values) {
        stream << '\t' << value;
    }
    stream << '\n';
    stream.flush();
    return text;
}

} // namespace Record
