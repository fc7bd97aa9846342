// The program file's lines, written and read.

#include "program/programfile.h"

#include "support/testmain.h"

#include <QTextStream>

using namespace TestText;

namespace {

QString written(const QVector<ProgramStep>& steps)
{
    QString text;
    QTextStream stream(&text);
    ProgramFile::write(stream, steps);
    stream.flush();
    return text;
}

QVector<ProgramStep> readBack(QString text, int limit = 200)
{
    QTextStream stream(&text);
    return ProgramFile::read(stream, limit);
}

QString tabbed(const char* words)
{
    return QString::fromLatin1(words).split(QLatin1Char(' ')).join(QLatin1Char('\t'));
}

const QString defaultLine = tabbed("0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 ---NoGroup--- 1");

ProgramStep someStep()
{
    ProgramStep step;
    for (int ch = 0; ch < Channels::count; ++ch) {
        step.setPoints[static_cast<size_t>(ch)] = QString::number(100 * ch + 0.5);
    }
    step.shutters = {true, false, true, true, false, false, true};
    step.timeSec = 12.5;
    step.group = "Buffer"_s;
    step.times = 7;
    return step;
}

} // namespace

class ProgramFileTest : public QObject
{
    Q_OBJECT

private slots:
    void defaultStepsHaveNineAndSevenZerosNoGroupAndOne()
    {
        QString second = defaultLine;
        second[0] = QLatin1Char('1');
        QCOMPARE(written({ProgramStep(), ProgramStep()}), defaultLine + u'\n' + second + u'\n');
        QCOMPARE(readBack(written({ProgramStep(), ProgramStep()})), QVector<ProgramStep>(2));
    }

    void aStepComesBackAsItWas()
    {
        QCOMPARE(readBack(written({someStep(), ProgramStep()})),
            (QVector<ProgramStep>{someStep(), ProgramStep()}));
    }

    void everyFieldHasItsPlace()
    {
        QCOMPARE(written({someStep()}),
            tabbed("0 0.5 100.5 200.5 300.5 400.5 500.5 600.5 700.5 800.5 1 0 1 1 0 0 1 12.5 Buffer 7")
                + u'\n');
    }

    void timeIsWrittenWithSixDigits_data()
    {
        QTest::addColumn<double>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << 12.5 << "12.5"_s;
        QTest::newRow("whole") << 100.0 << "100"_s;
        QTest::newRow("hold") << -1.0 << "-1"_s;
        QTest::newRow("many digits") << 1234.56789 << "1234.57"_s;
        QTest::newRow("a million") << 1000000.0 << "1e+06"_s;
        QTest::newRow("small") << 0.00001 << "1e-05"_s;
        QTest::newRow("no group separators") << 123456.0 << "123456"_s;
    }

    void timeIsWrittenWithSixDigits()
    {
        QFETCH(double, time);
        QFETCH(QString, text);
        ProgramStep step;
        step.timeSec = time;
        QCOMPARE(written({step}).split(QLatin1Char('\t')).at(17), text);
    }

    void placeholderOfAnEmptyGroupIsCaseSensitive()
    {
        QString line = defaultLine;
        QCOMPARE(ProgramFile::stepOf(line)->group, QString());
        line.replace("NoGroup"_s, "nogroup"_s);
        QCOMPARE(ProgramFile::stepOf(line)->group, "---nogroup---"_s);
    }

    void blankGroupIsWrittenAsNone()
    {
        ProgramStep step;
        step.group = " \t "_s;
        QCOMPARE(written({step}), defaultLine + u'\n');
    }

    void groupWithInnerBlanksShiftsItsLine()
    {
        ProgramStep step = someStep();
        step.group = "Quantum 3 wells"_s;
        QVERIFY(written({step}).endsWith("\tQuantum 3 wells\t7\n"_s));
        const ProgramStep back = readBack(written({step})).at(0);
        QCOMPARE(back.group, "Quantum"_s);
        QCOMPARE(back.times, 3);
        QCOMPARE(back.timeSec, 12.5);
    }

    void groupWithOuterBlanksIsSavedWithThemAndReadWithout()
    {
        ProgramStep step = someStep();
        step.group = " A "_s;
        QVERIFY(written({step}).endsWith("\t A \t7\n"_s));
        const ProgramStep back = readBack(written({step})).at(0);
        QCOMPARE(back.group, "A"_s);
        QCOMPARE(back.times, 7);
    }

    void setPointWithABlankShiftsItsLine()
    {
        ProgramStep step = someStep();
        step.setPoints[0] = "50 1"_s;
        const ProgramStep back = readBack(written({step})).at(0);
        QCOMPARE(back.setPoints[0], "50"_s);
        QCOMPARE(back.setPoints[1], "1"_s);
        QCOMPARE(back.setPoints[2], "100.5"_s);
        QCOMPARE(back.timeSec, 1.0); // the last shutter's flag
        QCOMPARE(back.group, "12.5"_s);
        QCOMPARE(back.times, 0); // "Buffer"
    }

    // 19 fields are left, which say less than a step: playing a guess of it could open a wrong shutter.
    void emptySetPointCostsTheLine()
    {
        ProgramStep step = someStep();
        step.setPoints[3].clear();
        QCOMPARE(readBack(written({step, ProgramStep()})), QVector<ProgramStep>(1));
    }

    void onlyOneMeansOpen()
    {
        const auto step
            = ProgramFile::stepOf(tabbed("0 0 0 0 0 0 0 0 0 0 1 0 2 -1 01 open 1.0 5 ---NoGroup--- 1"));
        QCOMPARE(step->shutters, (std::array<bool, 7>{true, false, false, false, true, false, false}));
    }

    void whatIsNoNumberCountsAsZero()
    {
        const auto step = ProgramFile::stepOf(tabbed("x a b c d e f g h i 0 0 0 0 0 0 0 soon G often"));
        QCOMPARE(step->setPoints[0], "a"_s);
        QCOMPARE(step->setPoints[8], "i"_s);
        QCOMPARE(step->timeSec, 0.0);
        QCOMPARE(step->times, 0);
        QCOMPARE(ProgramFile::stepOf(tabbed("0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 G 010"))->times, 10);
        QCOMPARE(ProgramFile::stepOf(tabbed("0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 G 0x10"))->times, 0);
        QCOMPARE(ProgramFile::stepOf(tabbed("0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 inf G 1"))->timeSec, 0.0);
    }

    void shortLinesAreSkipped_data()
    {
        QTest::addColumn<int>("fields");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("empty") << 0 << false;
        QTest::newRow("one") << 1 << false;
        QTest::newRow("18") << 18 << false;
        QTest::newRow("19, no repeat count") << 19 << false;
        QTest::newRow("20") << 20 << true;
    }

    void shortLinesAreSkipped()
    {
        QFETCH(int, fields);
        QFETCH(bool, accepted);
        const QString line = QStringList(defaultLine.split(QLatin1Char('\t')).mid(0, fields)).join(u'\t');
        QCOMPARE(readBack(line + u'\n' + defaultLine + u'\n').size(), accepted ? 2 : 1);
    }

    void stepNumberIsNotUsed()
    {
        QString first = written({someStep()});
        first.replace(0, 1, "150"_s);
        QCOMPARE(readBack(first).at(0), someStep());
    }

    void fieldsBeyondTheLastAreIgnored()
    {
        QCOMPARE(readBack(written({someStep()}).trimmed() + "\textra\t9\n"_s).at(0), someStep());
    }

    void anyWhiteSpaceSeparates()
    {
        const QString text = written({someStep()}).trimmed().replace(u'\t', " \t  "_s);
        QCOMPARE(readBack("  "_s + text + " \r\n"_s).at(0), someStep());
    }

    void linesBeyondTheTableAreLeft()
    {
        const QVector<ProgramStep> steps(250, someStep());
        QCOMPARE(readBack(written(steps)).size(), 200);
        QCOMPARE(readBack(QString(300, QLatin1Char('\n')) + written(steps)).size(), 200);
    }

    void lastLineNeedsNoLineEnd() { QCOMPARE(readBack(defaultLine).size(), 1); }
};

NELVO_TEST_MAIN(ProgramFileTest)
#include "programfile.moc"
