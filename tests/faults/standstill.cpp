// A station whose process stands still, for a second, a minute or an hour, in a ramp and in a program: all
// that it sends is what the rules want, nothing goes beyond what was asked, and the journal tells.

#include "soak/model/stationmodel.h"

#include "support/files.h"
#include "support/journalevents.h"
#include "support/testmain.h"
#include "support/wire.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace TestText;

namespace {

constexpr qint64 secondMs = 1000;
constexpr qint64 minuteMs = 60 * secondMs;

// Follows the rules, and keeps the set points.
class Follower : public StationModel
{
public:
    void cameFromStation(const QByteArray& bytes) override
    {
        StationModel::cameFromStation(bytes);
        pending += bytes;
        for (const Wire::Message& message : Wire::takeMessages(pending)) {
            if (message.kind == Wire::Message::SetPoint) {
                setPoints.append(message.bytes.mid(6, message.bytes.indexOf('\x03') - 6).toDouble());
            }
        }
    }

    QVector<double> setPoints;

private:
    QByteArray pending;
};

QByteArray line(int timeSec, int shutter)
{
    QByteArray text = "0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t";
    for (int number = 0; number < Channels::shutterCount; ++number) {
        text += number == shutter ? "1\t" : "0\t";
    }
    return text + QByteArray::number(timeSec) + "\t---NoGroup---\t1\n";
}

} // namespace

class StandstillTest : public QObject
{
    Q_OBJECT

    void open()
    {
        journalEvents();
        model = std::make_unique<Follower>();
        station = std::make_unique<DrivenChamber>(Chamber::Options(), *model);
        model->open();
        station->open();
        station->run(5 * secondMs);
    }

    QString difference() const
    {
        model->checkOutstanding();
        return model->divergence();
    }

    std::unique_ptr<Follower> model;
    std::unique_ptr<DrivenChamber> station;

private slots:
    void cleanup()
    {
        station.reset();
        model.reset();
        QFile::remove(stateFile);
        QFile::remove(recordFile);
    }

    void aRampGoesOnWithinWhatWasAsked_data()
    {
        QTest::addColumn<qint64>("ms");
        QTest::newRow("a second") << secondMs;
        QTest::newRow("a minute") << minuteMs;
        QTest::newRow("an hour") << 60 * minuteMs;
    }

    void aRampGoesOnWithinWhatWasAsked()
    {
        QFETCH(qint64, ms);
        open();
        model->cells.at(2).target = "145"_s;
        model->cells.at(2).minutes = "6"_s;
        model->cells.pressRun(2, DrivenClock::nowMs());
        station->pressRun(2, "145"_s, "6"_s);
        station->run(90 * secondMs);
        const int before = model->setPoints.size();
        QCOMPARE(before, 2);
        station->stand(ms);
        station->run(8 * minuteMs);
        QCOMPARE(difference(), QString());
        QVERIFY(std::is_sorted(model->setPoints.begin(), model->setPoints.end()));
        QCOMPARE(model->setPoints.last(), 145.0);
        QVERIFY(!station->isRamping(2));
        QCOMPARE(journalEvents().filter("late-tick ms=%1"_s.arg(ms)).size(), 1);
    }

    void aProgramGoesOnWithItsNextStep_data() { aRampGoesOnWithinWhatWasAsked_data(); }

    void aProgramGoesOnWithItsNextStep()
    {
        QFETCH(qint64, ms);
        open();
        const QByteArray steps = line(40, 1) + line(50, 2) + line(60, 3);
        putFile("steps.dat"_s, steps);
        model->program.load(steps);
        station->program().loadFile("steps.dat"_s);
        model->program.pressRun(DrivenClock::nowMs());
        station->program().click("Run");
        station->run(20 * secondMs);
        journalEvents();
        station->stand(ms);
        station->run(5 * minuteMs);
        QCOMPARE(difference(), QString());
        const QStringList told = journalEvents({"minute"_s});
        QCOMPARE(told.filter("late-tick ms=%1"_s.arg(ms)).size(), 1);
        // No step is left out, and none comes twice.
        QCOMPARE(told.filter(QRegularExpression("^shutters "_s)).size(), 2);
        QCOMPARE(told.filter(QRegularExpression("^step step=[23] "_s)).size(), 2);
        QCOMPARE(told.filter("program-end why=over"_s).size(), 1);
    }
};

NELVO_TEST_MAIN(StandstillTest)
#include "standstill.moc"
