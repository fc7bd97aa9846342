#include "faults/faultrun.h"

#include "journal/journalline.h"
#include "support/files.h"

#include <QFile>

#include <cmath>

using namespace TestText;
using Chamber::FaultKind;

namespace {

// A reading that is this near to a cell's temperature is that cell's.
constexpr double nearDegC = 5.0;

constexpr quint64 operatorStream = 4000;

double number(const QString& text)
{
    return text.toDouble(); // 0 where there is none, as the station has it
}

} // namespace

FaultRun::FaultRun(const FaultCase& theCase, quint64 seed)
    : tried(theCase)
    , random(seed, operatorStream)
    , station(theCase.options(seed), *this)
{
    QFile::remove(stateFile);
    QFile::remove(recordFile);
    QFile::remove(journalFile);
}

QString FaultRun::play(qint64 ms)
{
    station.open();
    startMs = DrivenClock::nowMs();
    while (DrivenClock::nowMs() - startMs < ms) {
        station.run(500 + random.below(3500));
        station.act([this] { act(); });
    }
    const QString unsent = unsentCommand();
    const QString dead = signOfLife();
    readings.finish(DrivenClock::nowMs() - startMs);
    readJournal();
    const QString refused
        = rejected.isEmpty() ? QString() : "the chamber says: "_s + QString::fromLatin1(rejected);
    for (const QString& wrong : {check.wrong(), refused, unsent, dead, untoldFault(), untoldSpells()}) {
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return {};
}

int FaultRun::toldSpells() const
{
    return readings.toldSpells(told.value("readings-shifted"_s) + told.value("unasked-line"_s));
}

QString FaultRun::slowness() const
{
    const QString ticks = station.tickCosts().complaint("ticks"_s);
    return ticks.isEmpty() ? station.actionCosts().complaint("actions"_s) : ticks;
}

int FaultRun::faults() const
{
    int sum = 0;
    for (const int count : struck) {
        sum += count;
    }
    return sum;
}

void FaultRun::cameFromStation(const QByteArray& bytes)
{
    for (const Wire::Message& message : check.take(bytes)) {
        if (message.kind == Wire::Message::Read) {
            judgeReading();
            lastRead = message.value;
        }
    }
}

void FaultRun::chamberSaid(const QByteArray& event)
{
    if (event.startsWith("fault ")) {
        ++struck[event.mid(6, event.lastIndexOf(' ') - 6)];
    } else if (event.startsWith("rejected ") || event.startsWith("ignored ")) {
        // A ramp from a garbled temperature may lead where no controller goes.
        rejected = event.endsWith(" value out of range") ? rejected : event;
    }
}

// The next channel is asked only when the last one's reading is shown.
void FaultRun::judgeReading()
{
    if (lastRead < 0) {
        return;
    }
    bool isNumber = false;
    const double shown = station.text(cell("CDeg", lastRead)).toDouble(&isNumber);
    if (!isNumber) {
        return;
    }
    readings.reading(!isAnothers(shown), DrivenClock::nowMs() - startMs);
}

// Whether a temperature is that of another cell and not of the one that was asked last.
bool FaultRun::isAnothers(double degC) const
{
    const auto& cells = station.chamber().instruments().temperatures().cells();
    const double nowSec = static_cast<double>(DrivenClock::nowMs()) * 1e-3;
    const auto isNear
        = [&](int channel) { return std::abs(cells.temperature(channel, nowSec) - degC) < nearDegC; };
    if (isNear(lastRead)) {
        return false;
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (isNear(channel)) {
            return true;
        }
    }
    return false;
}

void FaultRun::act()
{
    const int chance = random.below(10);
    if (chance < 5) {
        clickShutter();
    } else if (chance < 6) {
        closeAll();
    } else {
        clickRun();
    }
}

void FaultRun::clickShutter()
{
    const int shutter = random.below(Channels::shutterCount);
    check.command(check.commandedMask() ^ (1 << shutter));
    station.click(cell("CS", shutter));
}

void FaultRun::closeAll()
{
    check.command(0);
    station.click("AllCloseB"_s);
}

// A ramp by a few degrees from what the panel shows, or the end of one.
void FaultRun::clickRun()
{
    const int channel = random.below(Channels::count);
    if (station.isRamping(channel)) {
        station.click(cell("RunT", channel));
        return;
    }
    const double from = number(station.text(cell("CDeg", channel)));
    const double target = from + random.below(9) - 4;
    check.ramp(channel, from, target);
    station.pressRun(channel, QString::number(target), "0.5"_s);
}

// The window does what a click asks for.
QString FaultRun::signOfLife()
{
    const QString before = station.text(cell("NS", 3));
    station.click(cell("NS", 3));
    station.run(1000);
    return station.text(cell("NS", 3)) != before ? QString() : "the window does not answer"_s;
}

// What was commanded last has gone out, unless the bus is held for ever or the link is gone.
QString FaultRun::unsentCommand()
{
    for (const FaultKind kind : {FaultKind::Lost, FaultKind::Silent, FaultKind::Cut, FaultKind::HalfOpen}) {
        if (struck.value(Chamber::faultName(kind)) > 0) {
            return {};
        }
    }
    constexpr int patienceMs = 20000; // the latest reply takes 5 s
    for (int ms = 0; ms < patienceMs && !check.isObeyed(); ms += 100) {
        station.run(100);
    }
    return check.isObeyed() ? QString() : "the last shutter command never went out"_s;
}

QString FaultRun::untoldSpells() const
{
    const int spells = readings.spells().size();
    if (100 * toldSpells() >= tried.leastTold * spells) {
        return {};
    }
    return "the journal tells %1 of %2 spells of wrong readings"_s.arg(toldSpells()).arg(spells);
}

// What the journal must have said. A reply in pieces is whole when it is read; a wrong byte cannot be told.
QString FaultRun::untoldFault() const
{
    struct Sign
    {
        FaultKind kind;
        QStringList events;
    };
    static const QVector<Sign> signs = {{FaultKind::Lost, {"bus-held"_s}},
        {FaultKind::Duplicate, {"unasked-line"_s, "readings-shifted"_s}},
        {FaultKind::Er, {"reading-failed"_s}}, {FaultKind::WrongLength, {"reading-failed"_s}},
        {FaultKind::Silent, {"bus-held"_s}}, {FaultKind::Cut, {"lost"_s}},
        {FaultKind::HalfOpen, {"bus-held"_s}}};
    for (const Sign& sign : signs) {
        const QByteArray name = Chamber::faultName(sign.kind);
        bool isTold = struck.value(name) == 0;
        for (const QString& event : sign.events) {
            isTold = isTold || told.contains(event);
        }
        if (!isTold) {
            return "the journal does not tell: "_s + QString::fromLatin1(name);
        }
    }
    return {};
}

void FaultRun::readJournal()
{
    for (const QByteArray& text : fileText(journalFile).split('\n')) {
        if (const std::optional<JournalLine> line = readJournalLine(text)) {
            told[line->kind].append(static_cast<qint64>(std::llround(line->elapsedSec * 1000.0)));
        }
    }
}
