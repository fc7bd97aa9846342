// What the journal is told that belongs to no room alone: start and end, time, the minute's temperatures.

#include "app/adapteraddress.h"
#include "app/conditions.h"
#include "app/mbemain.h"
#include "base/wallclock.h"
#include "gpib/gpib.h"
#include "journal/journal.h"
#include "journal/linkjournal.h"

#include <QCoreApplication>
#include <QDir>

namespace {

constexpr qint64 minuteMs = 60000;

// How the run before this one ended, by what the journal has last. A start that failed was no run.
QString lastRun(const Journal& journal)
{
    const std::optional<JournalLine> last = journal.lastLine(QStringLiteral("no-start"));
    if (!last) {
        return QStringLiteral("none");
    }
    return last->kind == QLatin1String("exit") ? QStringLiteral("ended") : QStringLiteral("broken off");
}

QString textsOf(const QList<QLabel*>& labels)
{
    QStringList texts;
    for (const QLabel* label : labels) {
        texts.append(label->text());
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

void MBEMain::setupJournal()
{
    journal = new Journal;
    if (qEnvironmentVariable("NELVO_JOURNAL") == QLatin1String("--wire")) {
        wireJournal
            = new Journal(QStringLiteral("NelvoWire.log"), Journal::largestWireFile, Journal::olderWireFiles);
        journal->copyTo(*wireJournal);
    }
    linkJournal = new LinkJournal(*journal, wireJournal);
    journal->write("start",
        {{"version", QStringLiteral(NELVO_VERSION)}, {"adapter", adapterAddress()},
            {"language", tr("English", "the name of the language of these texts")},
            {"folder", QDir::currentPath()}, {"last-run", lastRun(*journal)}});
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { journal->write("exit"); });
    nextMinuteMs = WallClock::nowMs() + minuteMs;
}

void MBEMain::journalPc(const QString& asked, const QString& answer)
{
    journal->write("pc", {{"asked", asked}, {"answer", answer}});
}

void MBEMain::journalSessionEnd(bool isHeldUp)
{
    journal->write("session-end", {{"held-up", isHeldUp ? QStringLiteral("yes") : QStringLiteral("no")}});
}

// A state file that could not be written: the next start will show an older state.
void MBEMain::journalState()
{
    if (!conditions->isSaved()) {
        journal->write("state-failed");
    }
}

void MBEMain::journalCell(const char* kind, int ch, const JournalFields& fields)
{
    journal->write(kind, JournalFields{{"cell", QLatin1String(Channels::list[ch].name)}} + fields);
}

// Whether what goes out now has a connection to go over.
JournalField MBEMain::linkField() const
{
    return {"link", gpib->isUp() ? QStringLiteral("up") : QStringLiteral("down")};
}

void MBEMain::journalTick()
{
    linkJournal->tick();
    const qint64 now = WallClock::nowMs();
    const TimeWatch::Findings found = timeWatch.look({now, WallClock::systemMs(), WallClock::sleptMs()});
    const auto tell = [this](const char* kind, qint64 ms) {
        if (ms != 0) {
            journal->write(kind, {{"ms", QString::number(ms)}});
        }
    };
    tell("clock-stepped", found.steppedMs);
    tell("slept", found.sleptMs);
    tell("late-tick", found.lateMs);
    if (now < nextMinuteMs) {
        return;
    }
    nextMinuteMs += ((now - nextMinuteMs) / minuteMs + 1) * minuteMs;
    journal->write("minute", {{"measured", textsOf(currentLabels)}, {"set-points", textsOf(setPointLabels)}});
}
