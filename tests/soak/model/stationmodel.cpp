#include "soak/model/stationmodel.h"

#include "support/scriptedadapter.h"

StationModel::StationModel() = default;

void StationModel::open()
{
    link.open();
    cells.open();
    program.open();
    shutters.open(DrivenClock::nowMs());
}

void StationModel::cameFromStation(const QByteArray& bytes)
{
    const QByteArray awaited = link.outstanding();
    if (!link.compare(bytes)) {
        diverge(QStringLiteral("the station sent %1 where the rules want %2")
                    .arg(QString::fromLatin1(readable(bytes)), QString::fromLatin1(readable(awaited))));
    }
}

void StationModel::goesToStation(const QByteArray& bytes)
{
    for (const QByteArray& line : link.take(bytes)) {
        cells.take(line);
    }
}

void StationModel::linkGone()
{
    link.cut();
}

void StationModel::chamberSaid(const QByteArray& event)
{
    // Whatever is asked for is sent, also what no controller takes.
    const bool isRejected = event.startsWith("rejected ") && !event.endsWith(" value out of range");
    if (isRejected || event.startsWith("ignored ")) {
        diverge(QStringLiteral("the chamber says: ") + QString::fromUtf8(event));
    }
}

void StationModel::polled()
{
    cells.poll(DrivenClock::nowMs());
}

void StationModel::played()
{
    if (!program.isRunning()) {
        diverge(QStringLiteral("a program plays that should have ended"));
    }
    program.play(DrivenClock::nowMs());
}

void StationModel::retried()
{
    if (!shutters.retry(DrivenClock::nowMs())) {
        diverge(QStringLiteral("a shutter command was tried again that did not wait"));
    }
}

bool StationModel::isAwaitingBytes() const
{
    return wrong.isEmpty() && !link.outstanding().isEmpty();
}

void StationModel::checkOutstanding()
{
    if (!link.outstanding().isEmpty()) {
        diverge(QStringLiteral("the station did not send %1")
                    .arg(QString::fromLatin1(readable(link.outstanding()))));
    }
    if (shutters.isOverdue(DrivenClock::nowMs())) {
        diverge(QStringLiteral("a shutter command that waits was not tried again"));
    }
}

void StationModel::diverge(const QString& what)
{
    if (wrong.isEmpty()) {
        wrong = what;
    }
}
