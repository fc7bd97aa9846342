// An hour of a station at work, written down byte by byte and played again: the station sends the same, byte
// for byte. Far quicker than 60 times.

#include "simulator/randomsource.h"
#include "simulator/recording.h"

#include "support/drivenchamber.h"
#include "support/files.h"
#include "support/scriptedadapter.h"
#include "support/testmain.h"

#include <QElapsedTimer>
#include <QFile>

using namespace TestText;

namespace {

#ifdef NELVO_SHORT_HOUR
constexpr qint64 hourMs = 600000; // the sanitizers and Wine take their time
#else
constexpr qint64 hourMs = 3600000;
#endif
class Wiretap : public DrivenWatcher
{
public:
    void cameFromStation(const QByteArray& bytes) override { sent += bytes; }
    void chamberSaid(const QByteArray& event) override { events.append(event); }

    QByteArray sent;
    QList<QByteArray> events;
};

// Late, double, cut and missing readings included; nothing that would end the hour.
Chamber::Options options()
{
    using Kind = Chamber::FaultKind;
    Chamber::Options options;
    options.seed = 3;
    options.latencyMs = 20;
    options.jitterMs = 15;
    for (const Kind kind : {Kind::Late, Kind::Duplicate, Kind::Split, Kind::Er}) {
        options.faultRates.at(static_cast<size_t>(kind)) = 0.002;
    }
    return options;
}

ProgramStep step(double timeSec, size_t shutter, double degC)
{
    ProgramStep one;
    one.timeSec = timeSec;
    one.group = "A"_s;
    one.times = 20;
    one.shutters[shutter] = true;
    one.setPoints[shutter] = QString::number(degC);
    return one;
}

// The same every time: shutters, ramps, and a program that repeats.
void work(DrivenChamber& station)
{
    station.open();
    station.program().load({step(45.0, 1, 40.0), step(30.0, 2, 60.0), ProgramStep()});
    station.program().click("Run");
    Chamber::RandomSource random(5, 0);
    for (qint64 passed = 0; passed < hourMs;) {
        const int pauseMs = 10 * (1 + random.below(1000));
        station.run(pauseMs);
        passed += pauseMs;
        if (random.below(2) == 0) {
            station.click(cell("CS", random.below(Channels::shutterCount)));
        } else {
            station.pressRun(3 + random.below(5), QString::number(20 + random.below(80)), "3"_s);
        }
        station.settle();
    }
    station.close();
}

// Where the bytes begin to differ.
QString difference(const QByteArray& one, const QByteArray& other)
{
    int same = 0;
    while (same < one.size() && same < other.size() && one[same] == other[same]) {
        ++same;
    }
    const int from = qMax(0, same - 30);
    return "%1 and %2 bytes, from byte %3: %4 and %5"_s.arg(one.size())
        .arg(other.size())
        .arg(same)
        .arg(QString::fromLatin1(readable(one.mid(from, 60))),
            QString::fromLatin1(readable(other.mid(from, 60))));
}

} // namespace

class RecordedHourTest : public QObject
{
    Q_OBJECT

private slots:
    void theSameHourIsSentByteForByte()
    {
        qputenv("NELVO_JOURNAL", "--wire");
        Wiretap first;
        {
            DrivenChamber station(options(), first);
            work(station);
        }
        qunsetenv("NELVO_JOURNAL");
        QString error;
        const std::optional<Chamber::Recording> recording = Chamber::readRecording(wireFile, error);
        QVERIFY2(recording, qPrintable(error));
        QVERIFY2(recording->commands == first.sent, qPrintable(difference(recording->commands, first.sent)));
        QFile::remove(stateFile);

        Wiretap again;
        QElapsedTimer timer;
        timer.start();
        DrivenChamber station(*recording, again);
        work(station);
        QVERIFY2(again.events.contains("replayed to the end"), again.events.join('|').constData());
        QVERIFY2(again.sent == first.sent, qPrintable(difference(again.sent, first.sent)));
        qInfo("%d bytes sent, %d replies; played again %lld times as fast", first.sent.size(),
            recording->replies.size(), hourMs / qMax<qint64>(1, timer.elapsed()));
    }
};

NELVO_TEST_MAIN(RecordedHourTest)
#include "recordedhour.moc"
