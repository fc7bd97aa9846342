// The temperature record: one line a polling round, and the same values for the chart.

#include "app/mbemain.h"
#include "base/wallclock.h"
#include "journal/journal.h"
#include "temperature/recordline.h"

#include <QFile>

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

    const QByteArray line = Record::line(elapsedSec, values);
    journalRecord(isOpen && file.write(line) == line.size() && file.flush());
}

// The first line of several that had no room, and the line that has it again.
void MBEMain::journalRecord(bool isWritten)
{
    if (!isWritten && lostRecords == 0) {
        journal->write("record-failed");
    }
    if (isWritten && lostRecords > 0) {
        journal->write("record-back", {{"lost", QString::number(lostRecords)}});
    }
    lostRecords = isWritten ? 0 : lostRecords + 1;
}
