// The temperature record: one line a polling round, and the same values for the chart.

#include "app/mbemain.h"
#include "app/wallclock.h"
#include "temperature/recordline.h"

#include <QFile>

namespace {

// A line that does not fit on the disk is taken back, so that the next one does not continue half a line.
void appendWhole(QFile& file, const QByteArray& line)
{
    const qint64 sizeBefore = file.size();
    if (file.write(line) != line.size() || !file.flush()) {
        file.resize(sizeBefore);
    }
}

} // namespace

void MBEMain::recordTMP()
{
    QFile file(QStringLiteral("TemperatureRec.dat"));
    const bool isOpen = file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text);
    const double elapsedSec = static_cast<double>(WallClock::nowMs() - startTime) / 1000.0;

    QVector<double> values;
    for (int n = 0; n < currentLabels.size(); ++n) {
        values.append(Record::value(n, elapsedSec));
        Tshow->newT(n, elapsedSec, values.last());
    }
    Tshow->update();

    if (isOpen) {
        appendWhole(file, Record::line(elapsedSec, values));
    }
}
