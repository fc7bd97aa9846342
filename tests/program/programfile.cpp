#include "program/programfile.h"

#include "support/testmain.h"

#include <QTextStream>

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
    step.group = QStringLiteral("Buffer");
    step.times = 7;
    return step;
}

} // namespace

class TestProgramFile : public QObject
{
    Q_OBJECT

private slots:
    void defaultStepsHaveNineAndSevenZerosNoGroupAndOne();
    void aStepComesBackAsItWas();
    void everyFieldHasItsPlace();
    void timeIsWrittenWithSixDigits_data();
    void timeIsWrittenWithSixDigits();
    void placeholderOfAnEmptyGroupIsCaseSensitive();
    void blankGroupIsWrittenAsNone();
    void groupWithInnerBlanksShiftsItsLine();
    void groupWithOuterBlanksIsSavedWithThemAndReadWithout();
    void setPointWithABlankShiftsItsLine();
    void emptySetPointCostsTheLine();
    void onlyOneMeansOpen();
    void whatIsNoNumberCountsAsZero();
    void shortLinesAreSkipped_data();
    void shortLinesAreSkipped();
    void stepNumberIsNotUsed();
    void fieldsBeyondTheLastAreIgnored();
    void anyWhiteSpaceSeparates();
    void linesBeyondTheTableAreLeft();
    void lastLineNeedsNoLineEnd();
};

void TestProgramFile::defaultStepsHaveNineAndSevenZerosNoGroupAndOne()
{
    QString second = defaultLine;
    second[0] = QLatin1Char('1');
    QCOMPARE(written({ProgramStep(), ProgramStep()}), defaultLine + u'\n' + second + u'\n');
    QCOMPARE(readBack(written({ProgramStep(), ProgramStep()})), QVector<ProgramStep>(2));
}

void TestProgramFile::aStepComesBackAsItWas()
{
    QCOMPARE(
        readBack(written({someStep(), ProgramStep()})), (QVector<ProgramStep>{someStep(), ProgramStep()}));
}

void TestProgramFile::everyFieldHasItsPlace()
{
    QCOMPARE(written({someStep()}),
        tabbed("0 0.5 100.5 200.5 300.5 400.5 500.5 600.5 700.5 800.5 1 0 1 1 0 0 1 12.5 Buffer 7") + u'\n');
}

void TestProgramFile::timeIsWrittenWithSixDigits_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << 12.5 << QStringLiteral("12.5");
    QTest::newRow("whole") << 100.0 << QStringLiteral("100");
    QTest::newRow("hold") << -1.0 << QStringLiteral("-1");
    QTest::newRow("many digits") << 1234.56789 << QStringLiteral("1234.57");
    QTest::newRow("a million") << 1000000.0 << QStringLiteral("1e+06");
    QTest::newRow("small") << 0.00001 << QStringLiteral("1e-05");
    QTest::newRow("no group separators") << 123456.0 << QStringLiteral("123456");
}

void TestProgramFile::timeIsWrittenWithSixDigits()
{
    QFETCH(double, time);
    QFETCH(QString, text);
    ProgramStep step;
    step.timeSec = time;
    QCOMPARE(written({step}).split(QLatin1Char('\t')).at(17), text);
}

void TestProgramFile::placeholderOfAnEmptyGroupIsCaseSensitive()
{
    QString line = defaultLine;
    QCOMPARE(ProgramFile::stepOf(line)->group, QString());
    line.replace(QStringLiteral("NoGroup"), QStringLiteral("nogroup"));
    QCOMPARE(ProgramFile::stepOf(line)->group, QStringLiteral("---nogroup---"));
}

void TestProgramFile::blankGroupIsWrittenAsNone()
{
    ProgramStep step;
    step.group = QStringLiteral(" \t ");
    QCOMPARE(written({step}), defaultLine + u'\n');
}

void TestProgramFile::groupWithInnerBlanksShiftsItsLine()
{
    ProgramStep step = someStep();
    step.group = QStringLiteral("Quantum 3 wells");
    QVERIFY(written({step}).endsWith(QStringLiteral("\tQuantum 3 wells\t7\n")));
    const ProgramStep back = readBack(written({step})).at(0);
    QCOMPARE(back.group, QStringLiteral("Quantum"));
    QCOMPARE(back.times, 3);
    QCOMPARE(back.timeSec, 12.5);
}

void TestProgramFile::groupWithOuterBlanksIsSavedWithThemAndReadWithout()
{
    ProgramStep step = someStep();
    step.group = QStringLiteral(" A ");
    QVERIFY(written({step}).endsWith(QStringLiteral("\t A \t7\n")));
    const ProgramStep back = readBack(written({step})).at(0);
    QCOMPARE(back.group, QStringLiteral("A"));
    QCOMPARE(back.times, 7);
}

void TestProgramFile::setPointWithABlankShiftsItsLine()
{
    ProgramStep step = someStep();
    step.setPoints[0] = QStringLiteral("50 1");
    const ProgramStep back = readBack(written({step})).at(0);
    QCOMPARE(back.setPoints[0], QStringLiteral("50"));
    QCOMPARE(back.setPoints[1], QStringLiteral("1"));
    QCOMPARE(back.setPoints[2], QStringLiteral("100.5"));
    QCOMPARE(back.timeSec, 1.0); // the last shutter's flag
    QCOMPARE(back.group, QStringLiteral("12.5"));
    QCOMPARE(back.times, 0); // "Buffer"
}

// 19 fields are left, which say less than a step: playing a guess of it could open a wrong shutter.
void TestProgramFile::emptySetPointCostsTheLine()
{
    ProgramStep step = someStep();
    step.setPoints[3].clear();
    QCOMPARE(readBack(written({step, ProgramStep()})), QVector<ProgramStep>(1));
}

void TestProgramFile::onlyOneMeansOpen()
{
    const auto step
        = ProgramFile::stepOf(tabbed("0 0 0 0 0 0 0 0 0 0 1 0 2 -1 01 open 1.0 5 ---NoGroup--- 1"));
    QCOMPARE(step->shutters, (std::array<bool, 7>{true, false, false, false, true, false, false}));
}

void TestProgramFile::whatIsNoNumberCountsAsZero()
{
    const auto step = ProgramFile::stepOf(tabbed("x a b c d e f g h i 0 0 0 0 0 0 0 soon G often"));
    QCOMPARE(step->setPoints[0], QStringLiteral("a"));
    QCOMPARE(step->setPoints[8], QStringLiteral("i"));
    QCOMPARE(step->timeSec, 0.0);
    QCOMPARE(step->times, 0);
    QCOMPARE(ProgramFile::stepOf(tabbed("0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 inf G 1"))->timeSec, 0.0);
}

void TestProgramFile::shortLinesAreSkipped_data()
{
    QTest::addColumn<int>("fields");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("empty") << 0 << false;
    QTest::newRow("one") << 1 << false;
    QTest::newRow("18") << 18 << false;
    QTest::newRow("19, no repeat count") << 19 << false;
    QTest::newRow("20") << 20 << true;
}

void TestProgramFile::shortLinesAreSkipped()
{
    QFETCH(int, fields);
    QFETCH(bool, accepted);
    const QString line = QStringList(defaultLine.split(QLatin1Char('\t')).mid(0, fields)).join(u'\t');
    QCOMPARE(readBack(line + u'\n' + defaultLine + u'\n').size(), accepted ? 2 : 1);
}

void TestProgramFile::stepNumberIsNotUsed()
{
    QString first = written({someStep()});
    first.replace(0, 1, QStringLiteral("150"));
    QCOMPARE(readBack(first).at(0), someStep());
}

void TestProgramFile::fieldsBeyondTheLastAreIgnored()
{
    QCOMPARE(readBack(written({someStep()}).trimmed() + QStringLiteral("\textra\t9\n")).at(0), someStep());
}

void TestProgramFile::anyWhiteSpaceSeparates()
{
    const QString text = written({someStep()}).trimmed().replace(u'\t', QStringLiteral(" \t  "));
    QCOMPARE(readBack(QStringLiteral("  ") + text + QStringLiteral(" \r\n")).at(0), someStep());
}

void TestProgramFile::linesBeyondTheTableAreLeft()
{
    const QVector<ProgramStep> steps(250, someStep());
    QCOMPARE(readBack(written(steps)).size(), 200);
    QCOMPARE(readBack(QString(300, QLatin1Char('\n')) + written(steps)).size(), 200);
}

void TestProgramFile::lastLineNeedsNoLineEnd()
{
    QCOMPARE(readBack(defaultLine).size(), 1);
}

NELVO_TEST_MAIN(TestProgramFile)
#include "programfile.moc"
