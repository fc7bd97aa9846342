// What becomes of each line of a program file.

#include "program/programfile.h"

#include "support/files.h"
#include "support/testmain.h"

#include <QFile>

using namespace TestText;

namespace {

using ProgramFile::Line;

const QByteArray fields = "0 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 2.5 A 4";

// A line's number, kind and count of fields, and whether it has more.
QString told(const Line& line)
{
    const QStringList kinds{"step"_s, "empty"_s, "short"_s, "long"_s};
    QString text = QStringLiteral("%1 %2").arg(line.number).arg(kinds[static_cast<int>(line.kind)]);
    if (line.kind == Line::Kind::Step || line.kind == Line::Kind::TooShort) {
        text += QStringLiteral(" %1").arg(line.found);
    }
    return line.kind == Line::Kind::Step && line.hasMore ? text + "+"_s : text;
}

} // namespace

class ProgramLinesTest : public QObject
{
    Q_OBJECT

    const QString name = "program.dat"_s;

    QVector<Line> linesOf(const QByteArray& text) const
    {
        putFile(name, text);
        QVector<Line> lines;
        const auto keep = [&lines](const Line& line) {
            lines.append(line);
            return true;
        };
        if (!ProgramFile::readLines(name, keep)) {
            qFatal("cannot be read");
        }
        return lines;
    }

private slots:
    void cleanup() { QFile::remove(name); }

    void everyLineIsTold()
    {
        QStringList lines;
        for (const Line& line : linesOf("a remark\n" + fields + "\r\n\n \t\n" + fields + " 5\n" + fields
                 + '\n' + QByteArray(ProgramFile::longestLine + 1, 'x') + "\n" + fields.left(39))) {
            lines.append(told(line));
        }
        QCOMPARE(lines,
            QStringList({"1 short 2"_s, "2 step 20"_s, "3 empty"_s, "4 empty"_s, "5 step 20+"_s,
                "6 step 20"_s, "7 long"_s, "8 short 19"_s}));
    }

    void theTextsOfTheFieldsAreKept()
    {
        const Line line = linesOf("x 12,5 a 3 4 5 6 7 8 9 on 0 0 0 0 0 1 2.5s A 4times\n")[0];
        QCOMPARE(line.fields[0], "x"_s);
        QCOMPARE(line.fields[ProgramFile::firstSetPointField], "12,5"_s);
        QCOMPARE(line.fields[ProgramFile::firstShutterField], "on"_s);
        QCOMPARE(line.fields[ProgramFile::timeField], "2.5s"_s);
        QCOMPARE(line.fields[ProgramFile::groupField], "A"_s);
        QCOMPARE(line.fields[ProgramFile::timesField], "4times"_s);
        QCOMPARE(line.step.setPoints[0], "12,5"_s);
        QCOMPARE(line.step.timeSec, 0.0);
    }

    void readingStopsWhenItIsToldTo()
    {
        putFile(name, "a\nb\nc\n");
        int told = 0;
        QVERIFY(ProgramFile::readLines(name, [&told](const Line&) { return ++told < 2; }));
        QCOMPARE(told, 2);
    }

    void aTimeKeepsSixDigits_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("timeSec");
        QTest::newRow("as it is") << QByteArray("12.5") << 12.5;
        QTest::newRow("rounded") << QByteArray("1234.56789") << 1234.57;
        QTest::newRow("rounded to whole seconds") << QByteArray("1234567") << 1234570.0;
        QTest::newRow("hold") << QByteArray("-0.12345678") << -0.123457;
        QTest::newRow("the smallest") << QByteArray("1e-300") << 1e-300;
    }

    void aTimeKeepsSixDigits()
    {
        QFETCH(QByteArray, text);
        QFETCH(double, timeSec);
        QCOMPARE(linesOf("0 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 " + text + " A 4\n")[0].step.timeSec, timeSec);
        QCOMPARE(ProgramFile::tableTime(timeSec), timeSec);
    }

    void aTextIsCutToWhatTheTableTakes()
    {
        const QByteArray longText(40000, '1');
        const Line group = linesOf("0 1 2 3 4 5 6 7 8 9 1 0 0 0 0 0 1 2.5 " + longText + " 4\n")[0];
        QCOMPARE(group.step.group.size(), 32767);
        const Line setPoint = linesOf("0 1 2 3 " + longText + " 5 6 7 8 9 1 0 0 0 0 0 1 2.5 A 4\n")[0];
        QCOMPARE(setPoint.step.setPoints[3].size(), 32767);
    }
};

NELVO_TEST_MAIN(ProgramLinesTest)
#include "programlines.moc"
