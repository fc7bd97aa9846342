// What compare finds in journals that are written out here, line by line: what no driven station would do.

#include "growthcheck/support/checkrun.h"
#include "growthcheck/support/programtext.h"
#include "journal/journalline.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace TestText;

namespace {

const QStringList program{
    "t=10 open=As4 Ga=60 g=A x=2"_s, "t=100 open=Ga,As4 g=A"_s, "t=5"_s}; // 225 s and some ticks

// "12.5 kind name=value;name=value": seconds since Run, and what the journal says.
QByteArray lineOf(const QString& event)
{
    JournalLine line;
    line.elapsedSec = 100.0 + event.section(u' ', 0, 0).toDouble();
    line.systemMs = 1700000000000;
    line.kind = event.section(u' ', 1, 1);
    const QString fields = event.section(u' ', 2);
    for (const QString& field : fields.split(u';', Qt::SkipEmptyParts)) {
        line.fields.append({field.section(u'=', 0, 0), field.section(u'=', 1)});
    }
    return journalText(line);
}

QStringList stepEvents(const QString& at, int step, int pass, const QString& open)
{
    return {"%1 step step=%2;group=%3;pass=%4;times=%5;seconds=1;late-ms=10"_s.arg(at, QString::number(step),
                step < 3 ? "A"_s : QString(), QString::number(pass), step < 3 ? "2"_s : "1"_s),
        "%1 shutters open=%2;waited-ms=0;link=up"_s.arg(at, open)};
}

// The run of `program` as it should be, with the temperatures that make its ramps whole.
QStringList wholeRun()
{
    QStringList events{"0 program rows=3;sha256=0"_s};
    const QByteArray text = programText(program);
    const QList<QByteArray> rows = text.split('\n');
    for (int row = 0; row < program.size(); ++row) {
        events.append("0 row step=%1;fields=%2"_s.arg(
            QString::number(row + 1), QString::fromLatin1(rows[row]).section(u'\t', 1)));
    }
    events += stepEvents("0.01"_s, 1, 1, "xxxoxxx"_s);
    events += {"0.01 ramp cell=Ga;from=59;to=60;minutes=0.166667;rate=6"_s,
        "0.1 set-point cell=Ga;deg-c=60"_s, "0.1 ramp-end cell=Ga;why=reached"_s};
    events += stepEvents("10.02"_s, 2, 1, "xoxoxxx"_s);
    events += "60.00 minute measured=1 60 1 1 1 1 1 1 1;set-points=0 60 0 0 0 0 0 0 0"_s;
    events += stepEvents("110.03"_s, 1, 2, "xxxoxxx"_s);
    events += {"110.03 ramp cell=Ga;from=59.5;to=60;minutes=0.166667;rate=3"_s,
        "110.1 set-point cell=Ga;deg-c=60"_s, "110.1 ramp-end cell=Ga;why=reached"_s};
    events += stepEvents("120.04"_s, 2, 2, "xoxoxxx"_s);
    events += stepEvents("220.05"_s, 3, 1, "xxxxxxx"_s);
    return events + QStringList{"225.06 program-end why=over"_s};
}

} // namespace

class ComparedJournalTest : public QObject
{
    Q_OBJECT

    static QStringList foundIn(const QStringList& events)
    {
        QByteArray text;
        for (const QString& event : events) {
            text += lineOf(event);
        }
        putFile("journal.log"_s, text);
        const CheckRun run = runCheck({"compare"_s, "--json"_s, "program.dat"_s, "journal.log"_s});
        QStringList texts;
        const QJsonObject comparison = QJsonDocument::fromJson(run.out).object()["comparison"_s].toObject();
        for (const QJsonValue& value : comparison["findings"_s].toArray()) {
            const QJsonObject finding = value.toObject();
            texts.append("%1 step %2 pass %3 %4"_s
                             .arg(finding["id"_s].toString(), QString::number(finding["step"_s].toInt()),
                                 QString::number(finding["pass"_s].toInt()), finding["cell"_s].toString())
                             .simplified());
        }
        return texts;
    }

private slots:
    void initTestCase() { putFile("program.dat"_s, programText(program)); }

    void nothingIsFoundInAWholeRun() { QCOMPARE(foundIn(wholeRun()), QStringList()); }

    // One line is changed into another, or another is put behind it.
    void eachIsFound_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("behind");
        QTest::addColumn<QStringList>("found");
        const auto change
            = [](const char* name, const QString& line, const QString& other, const QStringList& found) {
                  QTest::newRow(name) << line << other << QString() << found;
              };
        const auto add
            = [](const char* name, const QString& line, const QString& behind, const QStringList& found) {
                  QTest::newRow(name) << line << line << behind << found;
              };
        const QString second = "10.02 shutters open=xoxoxxx;waited-ms=0;link=up"_s;
        change("a link that is down", second, "10.02 shutters open=xoxoxxx;waited-ms=0;link=down"_s,
            {"shutters-not-sent step 2 pass 1"_s});
        change("a command that waited", second, "10.53 shutters open=xoxoxxx;waited-ms=510;link=up"_s,
            {"shutters-waited step 2 pass 1"_s});
        change("a command that hardly waited", second, "10.52 shutters open=xoxoxxx;waited-ms=500;link=up"_s,
            {});
        change("a command overtaken", second, QString(), {"shutters-overtaken step 2 pass 1"_s});
        change("other shutters", second, "10.02 shutters open=xooooxx;waited-ms=0;link=up"_s,
            {"shutters-by-hand step 2 pass 1"_s, "shutters-overtaken step 2 pass 1"_s});
        const QString setPoint = "110.1 set-point cell=Ga;deg-c=60"_s;
        change("another set point", setPoint, "110.1 set-point cell=Ga;deg-c=59.9"_s,
            {"set-point-differs step 1 pass 2 Ga"_s});
        change("a set point that a link up has sent", setPoint, setPoint + ";link=up"_s, {});
        change("a set point that a link down has not", setPoint, setPoint + ";link=down"_s,
            {"set-point-missing step 1 pass 2 Ga"_s});
        change("a late set point", setPoint, "114.1 set-point cell=Ga;deg-c=60"_s,
            {"set-point-late step 1 pass 2 Ga"_s});
        change("a ramp not begun", "0.01 ramp cell=Ga;from=59;to=60;minutes=0.166667;rate=6"_s, QString(),
            {"ramp-missing step 1 pass 1 Ga"_s});
        const QString third = "120.04 step step=2;group=A;pass=2;times=2;seconds=1;late-ms=10"_s;
        change("a step that is late", third,
            "120.04 step step=2;group=A;pass=2;times=2;seconds=1;late-ms=101"_s,
            {"step-late step 2 pass 2"_s});
        change("another step", third, "120.04 step step=2;group=A;pass=1;times=2;seconds=1;late-ms=10"_s,
            {"step-unexpected step 2 pass 1"_s, "step-unexpected step 3 pass 0"_s});
        const QString minute = "60.00 minute measured=1 60 1 1 1 1 1 1 1;set-points=0 60 0 0 0 0 0 0 0"_s;
        change("a temperature off", minute,
            "60.00 minute measured=1 121 1 1 1 1 1 1 1;set-points=0 60 0 0 0 0 0 0 0"_s,
            {"temperature-off step 2 pass 1 Ga"_s});
        add("a link that is lost", minute, "70 lost why=gone"_s, {"link-lost step 2 pass 1"_s});
        add("a bus that is held", minute, "70 bus-held"_s, {"bus-held step 2 pass 1"_s});
        add("a reading that failed", minute, "70 reading-failed cell=In;why=silence"_s,
            {"reading-failed step 2 pass 1 In"_s});
        add("readings that are shifted", minute, "70 readings-shifted asked=02;line=01"_s,
            {"readings-shifted step 2 pass 1"_s});
        add("a line unasked", minute, "70 unasked-line line=OK"_s, {"unasked-line step 2 pass 1"_s});
        add("a garbled reply", minute, "70 received bytes=02M0x025.01\r\n"_s,
            {"reply-garbled step 2 pass 1"_s});
        add("a split reply", minute, "70 received bytes=02M0"_s, {"reply-split step 2 pass 1"_s});
        add("a sleep", minute, "70 slept ms=5000"_s, {"slept step 2 pass 1"_s});
        add("a station held up", minute, "70 late-tick ms=500"_s, {"late-tick step 2 pass 1"_s});
        add("a clock that is set", minute, "70 clock-stepped ms=-5000"_s, {"clock-stepped step 2 pass 1"_s});
        add("lines that are lost", minute, "70 lost-lines count=3"_s, {"lines-lost step 2 pass 1"_s});
        add("a half line", minute, "70 nonsense"_s, {});
        add("an edit out of the table", minute, "70 edit step=0;fields=x"_s, {});
        add("a cell that is none", minute, "70 set-point cell=Xe;deg-c=60"_s, {});
        add("the program's end within", minute, "70 exit"_s, {"broken-off step 2 pass 0"_s});
    }

    void eachIsFound()
    {
        QFETCH(QString, line);
        QFETCH(QString, other);
        QFETCH(QString, behind);
        QFETCH(QStringList, found);
        QStringList events = wholeRun();
        const int at = events.indexOf(line);
        QVERIFY(at >= 0);
        events[at] = other;
        if (!behind.isEmpty()) {
            events.insert(at + 1, behind);
        }
        events.removeAll(QString());
        QCOMPARE(foundIn(events), found);
    }

    void olderJournalsAreReadToo()
    {
        const QStringList events = wholeRun();
        QByteArray older;
        for (const QString& event : events.mid(0, 9)) {
            older += lineOf(event);
        }
        putFile("journal.log.1"_s, older);
        QCOMPARE(foundIn(events.mid(9)), QStringList());
        QVERIFY(QFile::remove("journal.log.1"_s));
        QCOMPARE(runCheck({"compare"_s, "program.dat"_s, "journal.log"_s}).status, 2);
    }

    void textFitsATerminal()
    {
        foundIn(wholeRun());
        const CheckRun run = runCheck({"compare"_s, "program.dat"_s, "journal.log"_s});
        QVERIFY(run.out.contains("at the most): Ga 0.0 (0.0)"));
        for (const QString& line : run.lines()) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
        }
        QVERIFY(runCheck({"compare"_s, "--csv"_s, "program.dat"_s, "journal.log"_s})
                    .out.contains("set-point,1,2,,110.030,110.100,,Ga,60.0,60.0\n"));
    }
};

NELVO_TEST_MAIN(ComparedJournalTest)
#include "comparedjournal.moc"
