// What growthcheck finds in a program: every kind where it belongs, and nothing else.

#include "growthcheck/check/check.h"
#include "growthcheck/support/programtext.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

using namespace TestText;
using GrowthCheck::Assumptions;
using GrowthCheck::Finding;

namespace {

struct Case
{
    const char* name;
    QStringList program;
    QStringList findings; ///< as placed() tells them
};

QString many(const char* text, int times)
{
    return QString::fromLatin1(text).repeated(times);
}

QStringList rows(int count, const char* description)
{
    QStringList all;
    for (int row = 0; row < count; ++row) {
        all.append(QLatin1String(description));
    }
    return all;
}

// Every cell is at 20 deg C, but for In, which nobody told of, and Pre Ch, which shows none.
Assumptions starts()
{
    Assumptions assumptions;
    assumptions.starts.fill({Assumptions::Start::Kind::Known, 20.0});
    assumptions.starts[5].kind = Assumptions::Start::Kind::NotTold;
    assumptions.starts[8].kind = Assumptions::Start::Kind::None;
    return assumptions;
}

// "ramp-refused step 2 pass 3 Ga".
QString placed(const Finding& finding)
{
    QString text = QLatin1String(finding.kind.id);
    if (finding.line > 0 && finding.step == 0) {
        text += " line %1"_s.arg(finding.line);
    }
    if (finding.step > 0) {
        text += " step %1"_s.arg(finding.step);
    }
    if (finding.pass > 0) {
        text += " pass %1"_s.arg(finding.pass);
    }
    if (finding.channel >= 0) {
        text += u' ' + QLatin1String(Channels::list[finding.channel].name);
    }
    return finding.count > 1 ? text + " x %1"_s.arg(finding.count) : text;
}

const QVector<Case>& cases()
{
    static const QVector<Case> all{
        {"an ordinary program",
            {"t=300 open=As4 Ga=200 As4=90"_s, "t=2 open=Ga,As4 g=A x=3"_s, "t=2 open=Al,As4 g=A"_s, "t=1"_s},
            {"hot-at-end step 4"_s}},
        // The file.
        {"nothing", {}, {"no-steps"_s}},
        {"only words", {"| To be written"_s}, {"no-steps"_s, "remark line 1"_s}},
        {"a remark", {"| Grown twice"_s, "n=0 t=10"_s}, {"remark line 1"_s}},
        {"a line too short", {"t=10"_s, "|1 0 0 12"_s, "|"_s, "|3 0 0"_s, "n=1 t=10"_s},
            {"line-skipped line 2"_s}},
        {"a line too long", {u'|' + many("0 ", 40000), "n=0 t=10"_s}, {"line-too-long line 1"_s}},
        {"two rows too many", rows(202, "t=10"),
            {"surplus-row line 201"_s, "last-row step 200"_s, "total-time"_s}},
        {"a blank in a name", {"t=10 g=Quantum\twell"_s},
            {"surplus-field step 1"_s, "times-text step 1"_s, "times-below-one step 1"_s}},
        {"a number left out", {"t=10"_s, "n=2 t=10"_s, "n=3 t=10"_s}, {"row-number step 2"_s}},
        {"another encoding", {"t=10 g=\uFFFD\uFFFD"_s}, {"damaged-text step 1"_s}},
        // Texts.
        {"a decimal comma", {"t=10 Ga=12,5"_s}, {"set-point-text step 1 Ga"_s}},
        {"full-width digits", {"t=10 MainCh=８５０"_s}, {"set-point-text step 1 Main Ch"_s}},
        {"a unit", {"t=10 Si=850C"_s}, {"set-point-text step 1 Si"_s}},
        {"below zero", {"t=10 Ga=-5"_s}, {"set-point-negative step 1 Ga"_s}},
        {"five digits", {"t=13000 Ga=10000"_s}, {"set-point-wide step 1 Ga"_s, "hot-at-end step 1"_s}},
        {"four digits", {"t=13000 Ga=9999.9"_s}, {"hot-at-end step 1"_s}},
        {"a shutter of two", {"|0 0 0 0 0 0 0 0 0 0 0 2 0 0 0 0 01 10 ---NoGroup--- 1"_s},
            {"shutter-text step 1 Ga"_s, "shutter-text step 1 As7"_s, "open-at-end step 1"_s}},
        {"a time with a comma", {"t=10"_s, "t=12,5"_s}, {"time-text step 2"_s}},
        {"a long time", {"t=10.0000001"_s}, {"time-rounded step 1"_s}},
        {"repeats in words", {"t=10 g=A x=two"_s}, {"times-text step 1"_s, "times-below-one step 1"_s}},
        // Groups.
        {"two repeat counts", {"t=10 g=A x=3"_s, "t=10 g=A x=5"_s, "t=10 g=A x=1"_s},
            {"times-differ step 2"_s}},
        {"no repeat", {"t=10 g=A x=0"_s, "t=10 g=B x=-3"_s},
            {"times-below-one step 1"_s, "times-below-one step 2"_s}},
        {"an end within a group", {"t=10 g=A x=3"_s, "t=0 g=A"_s}, {"repeats-cut step 1"_s}},
        {"repeats without a group", {"t=10 x=2"_s, "t=10"_s, "t=10 g=A"_s}, {"ungrouped-repeat step 1"_s}},
        {"a group again", {"t=10 g=A x=2"_s, "t=10 g=B x=2"_s, "t=10 g=A x=2"_s}, {"group-again step 3"_s}},
        {"groups that look alike", {"t=10 g=A x=2"_s, "t=10 g=a x=2"_s, "t=10 g=Ａ x=2"_s},
            {"group-alike step 2"_s, "group-alike step 3"_s}},
        {"groups that look alike, far apart",
            {"t=10 g=A x=2"_s, "t=10 g=B x=2"_s, "t=10"_s, "t=10 g=a x=2"_s, "t=10 g=B x=2"_s, "t=10 g=A"_s},
            {"group-alike step 4"_s, "group-alike step 6"_s, "group-again step 5"_s, "group-again step 6"_s}},
        {"long names that look alike", {"t=10 x=2 g="_s + many("A", 64), "t=10 x=2 g="_s + many("a", 64)},
            {"group-alike step 2"_s}},
        {"too long names to look alike", {"t=10 x=2 g="_s + many("A", 65), "t=10 x=2 g="_s + many("a", 65)},
            {}},
        {"a group that says no group", {"t=10 g=NoGroup"_s}, {"group-alike step 1"_s}},
        // Rows and steps.
        {"an end that means more", {"t=10"_s, "t=0 open=Ga"_s}, {"end-row step 2"_s}},
        {"rows behind the end", {"t=10"_s, "t=0"_s, "t=10"_s, "t=10"_s}, {"row-not-reached step 3"_s}},
        {"two hundred rows", rows(200, "t=10"), {"last-row step 200"_s, "total-time"_s}},
        {"a short step", {"t=0.35"_s, "t=0.36"_s}, {"short-step step 1"_s}},
        {"a hold that grows", {"t=-1 open=Ga,As4"_s, "t=10"_s}, {"hold-open step 1"_s}},
        {"a hold under arsenic", {"t=-1 open=As4"_s, "t=10"_s}, {"hold-arsenic step 1"_s}},
        {"a hold with set points", {"t=-1 Ga=30 Si=0 In=40"_s, "t=10"_s}, {"hold-set-points step 1"_s}},
        {"a closed hold", {"t=-1"_s, "t=10"_s}, {}},
        {"a step without end", {"t=1e300"_s}, {"endless-step step 1"_s}},
        {"a group without end", {"t=1e9 g=A x=2147483647"_s}, {"endless-step step 1"_s}},
        {"too many set points", {"t=60 Ga=20"_s, "t=1e9 Ga=20 Si=20"_s},
            {"check-stops step 2"_s, "level-ramp step 1 Ga"_s}},
        {"a ramp without end", {"t=1e300 In=40"_s}, {"endless-step step 1"_s}},
        // Ramps.
        {"a rise too fast", {"t=60 Ga=71"_s, "t=10"_s}, {"ramp-refused step 1 Ga"_s}},
        {"a rise just slow enough", {"t=60 Ga=70"_s, "t=10"_s}, {}},
        {"a rise too fast at last", {"t=60 Ga=65 g=A x=2"_s, "t=60 Ga=5 g=A"_s, "t=60 Ga=60"_s},
            {"ramp-refused step 1 pass 2 Ga"_s, "ramp-refused step 3 Ga"_s, "level-ramp step 2 pass 2 Ga"_s}},
        {"a time for no number", {"t=1e-310 Ga=10"_s}, {"ramp-refused step 1 Ga"_s, "short-step step 1"_s}},
        {"nobody said", {"t=60 In=40"_s, "t=10"_s}, {"start-unknown step 1 In"_s}},
        {"nobody said, and perhaps too fast", {"t=60 In=80"_s, "t=10"_s}, {"start-unknown step 1 In"_s}},
        {"none to see", {"t=60 PreCh=40"_s, "t=60 PreCh=60"_s, "t=10"_s},
            {"ramp-refused step 2 Pre Ch"_s, "start-unknown step 1 Pre Ch"_s,
                "start-unknown step 2 Pre Ch"_s}},
        {"none to see and too fast", {"t=60 PreCh=80"_s, "t=10"_s},
            {"ramp-refused step 1 Pre Ch"_s, "start-unknown step 1 Pre Ch"_s}},
        {"a ramp right behind", {"t=0.4 Ga=20.3"_s, "t=60 Ga=40"_s, "t=10"_s}, {"start-lagging step 2 Ga"_s}},
        {"a ramp cut short", {"t=60.1 Ga=60"_s, "t=60 Ga=40"_s, "t=10"_s},
            {"ramp-replaced step 2 Ga"_s, "start-lagging step 2 Ga"_s}},
        {"a ramp perhaps cut short", {"t=60.3 Ga=60"_s, "t=60 Ga=40"_s, "t=10"_s},
            {"ramp-outlasts-step step 1 Ga"_s, "start-lagging step 2 Ga"_s}},
        {"a ramp not cut short", {"t=61 Ga=60"_s, "t=60 Ga=40"_s, "t=10"_s}, {}},
        {"a rounding", {"t=180 Ga=21"_s, "t=10"_s}, {"extra-set-point step 1 Ga"_s}},
        {"no rounding", {"t=180 Ga=22"_s, "t=10"_s}, {}},
        {"a ramp left alone", {"t=60.1 Ga=60"_s, "t=60"_s}, {}},
        {"a level ramp", {"t=100 Ga=20"_s, "t=10"_s}, {"ramps-at-end step 1 Ga"_s, "level-ramp step 1 Ga"_s}},
        {"a level ramp that ends", {"t=100 Ga=20"_s, "t=60 Ga=30"_s, "t=10"_s}, {"level-ramp step 1 Ga"_s}},
        // The end.
        {"open at the end", {"t=10 open=Ga"_s}, {"open-at-end step 1"_s}},
        {"hot at the end", {"t=120 Ga=110"_s, "t=10"_s}, {"hot-at-end step 2"_s}},
    };
    return all;
}

} // namespace

class FindingsTest : public QObject
{
    Q_OBJECT

    static GrowthCheck::Findings found(
        const QStringList& program, const std::optional<GrowthCheck::Rates>& rates = std::nullopt)
    {
        putFile("program.dat"_s, programText(program));
        const auto loaded = GrowthCheck::loadProgram("program.dat"_s);
        return GrowthCheck::checkProgram(*loaded, starts(), rates).findings;
    }

    static QStringList findingsOf(const QStringList& program, const std::optional<GrowthCheck::Rates>& rates)
    {
        QStringList texts;
        for (const Finding& finding : found(program, rates)) {
            texts.append(placed(finding));
        }
        return texts;
    }

    // The sentences of all findings of a kind.
    static QString sentences(const QStringList& program, const char* id)
    {
        QStringList texts;
        for (const Finding& finding : found(program)) {
            if (QLatin1String(finding.kind.id) == QLatin1String(id)) {
                texts.append(finding.text);
            }
        }
        return texts.join(u' ');
    }

private slots:
    void eachIsFoundWhereItIs_data()
    {
        QTest::addColumn<QStringList>("program");
        QTest::addColumn<QStringList>("findings");
        for (const Case& example : cases()) {
            QTest::newRow(example.name) << example.program << example.findings;
        }
    }

    void eachIsFoundWhereItIs()
    {
        QFETCH(QStringList, program);
        QFETCH(QStringList, findings);
        if (!canBeWritten(program.join(u'\n'))) {
            QSKIP("the system's encoding does not have its letters");
        }
        QCOMPARE(findingsOf(program, std::nullopt).join("; "_s), findings.join("; "_s));
    }

    void aTotalSaysWhyItIsNotTheTime_data()
    {
        QTest::addColumn<QStringList>("program");
        QTest::addColumn<QString>("why");
        const QString late = "every step begins up to 10 ms late"_s;
        const QString waits = "; waits at holds are not counted"_s;
        const QString last = "; step 200 is played and not counted (7.5 s)"_s;
        const QStringList most = rows(199, "t=10");
        QTest::newRow("many steps") << most << late;
        QTest::newRow("a hold") << QStringList({"t=-1"_s}) + rows(120, "t=10") << late + waits;
        QTest::newRow("row 200") << most + QStringList({"t=7.5"_s}) << late + last;
        QTest::newRow("row 200 in a group")
            << rows(199, "t=10 g=A x=3") + QStringList({"t=7.5 g=A"_s}) << late + last;
        QTest::newRow("row 200 and a hold")
            << rows(198, "t=10") + QStringList({"t=-1"_s, "t=7.5"_s}) << late + waits + last;
        QTest::newRow("row 200 holds") << most + QStringList({"t=-1"_s}) << late + waits;
        QTest::newRow("row 200 is not reached")
            << rows(198, "t=10") + QStringList({"t=0"_s, "t=7.5"_s}) << late;
    }

    void aTotalSaysWhyItIsNotTheTime()
    {
        QFETCH(QStringList, program);
        QFETCH(QString, why);
        QCOMPARE(sentences(program, "total-time").section(u':', 1), u' ' + why + u'.');
    }

    void groupsThatLookAlikeAreNamed()
    {
        QCOMPARE(sentences({"t=10 g=A"_s, "t=10 g=B"_s, "t=10 g=Ａ"_s}, "group-alike"),
            "The group \"Ａ\" looks like \"A\" of step 1 and is another one."_s);
    }

    // Marks that combine take a time that grows with the square of their number where all are put in order.
    void longTextsTakeNoTime()
    {
        const QString marks = "\u0301\u0316"_s.repeated(12000);
        const QStringList program = rows(20, "t=10 x=2 Ga=1%1 g=A%1").replaceInStrings("%1"_s, marks);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(findingsOf(program, std::nullopt).filter("set-point-text"_s).size(), 20);
        QVERIFY2(timer.elapsed() < 5000, qPrintable("%1 ms"_s.arg(timer.elapsed())));
    }

    void aCellWithoutARateIsFound()
    {
        const QStringList program{
            "t=10 open=Ga,As4,Si"_s, "t=10 open=Al,In"_s, "t=10 open=In g=A x=3"_s, "t=1"_s};
        GrowthCheck::Rates rates;
        rates.nmPerSec[1] = 0.28;
        rates.nmPerSec[4] = 0.1;
        QCOMPARE(findingsOf(program, rates), QStringList({"rate-missing In x 4"_s}));
        rates.nmPerSec[5] = 0.2;
        QCOMPARE(findingsOf(program, rates), QStringList());
    }

    // What the cases above have among them is every kind that there is.
    void everyKindHasItsCase()
    {
        QSet<QString> found{"rate-missing"_s};
        for (const Case& example : cases()) {
            for (const QString& finding : example.findings) {
                found.insert(finding.section(u' ', 0, 0));
            }
        }
        QFile source(QStringLiteral(NELVO_KINDS));
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QRegularExpression kind("Kind \\w+\\{\"([a-z-]+)\""_s);
        QSet<QString> known;
        for (auto next = kind.globalMatch(QString::fromUtf8(source.readAll())); next.hasNext();) {
            known.insert(next.next().captured(1));
        }
        QVERIFY(known.size() > 30);
        QCOMPARE(QStringList((known - found).values()).join(u' '), QString());
        QCOMPARE(QStringList((found - known).values()).join(u' '), QString());
    }
};

NELVO_TEST_MAIN(FindingsTest)
#include "findings.moc"
