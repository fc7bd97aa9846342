// The manual pages of the programs have the options that --help has, and the pages for engineers every fault.

#include "app/commandline.h"
#include "growthcheck/app/options.h"
#include "simulator/faults.h"
#include "simulator/options.h"
#include "support/files.h"
#include "support/testmain.h"

#include <QRegularExpression>

using namespace TestText;

namespace {

QString textOf(const char* name)
{
    return QString::fromUtf8(fileText(QStringLiteral(NELVO_ROOT) + u'/' + QLatin1String(name)));
}

QStringList optionsIn(const QString& line)
{
    static const QRegularExpression option("(?<![\\w-])--?[a-z][a-z-]*"_s);
    QStringList options;
    for (auto next = option.globalMatch(line); next.hasNext();) {
        options.append(next.next().captured());
    }
    return options;
}

// An option's line begins with it; what is said of it may stand behind, at a distance.
QStringList optionsOfHelp(const QString& help)
{
    QStringList options;
    for (const QString& line : help.split(u'\n')) {
        const QString head = line.trimmed().section("  "_s, 0, 0);
        if (line.startsWith(u' ') && head.startsWith(u'-')) {
            options += optionsIn(head);
        }
    }
    options.sort();
    return options;
}

// An option's line is the one behind ".TP", among the options.
QStringList optionsOfManualPage(const char* name)
{
    const QString text = textOf(name).replace("\\-"_s, "-"_s);
    const QString chapter = text.section(".SH OPTIONS\n"_s, 1).section("\n.SH "_s, 0, 0);
    QStringList options;
    for (const QString& entry : chapter.split(".TP\n"_s).mid(1)) {
        options += optionsIn(entry.section(u'\n', 0, 0).section(u' ', 1));
    }
    options.sort();
    return options;
}

} // namespace

class HelpPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void theManualPageHasTheOptionsOfHelp_data()
    {
        QTest::addColumn<QString>("help");
        QTest::addColumn<QByteArray>("page");
        QTest::newRow("Nelvo") << helpText() << QByteArray("packaging/man/Nelvo.1");
        QTest::newRow("chambersim") << Chamber::readCommandLine({"chambersim"_s, "--help"_s}, "1"_s).text
                                    << QByteArray("packaging/man/chambersim.1");
        QTest::newRow("growthcheck")
            << GrowthCheck::readCommandLine({"growthcheck"_s, "--help"_s}, false).text
            << QByteArray("packaging/man/growthcheck.1");
    }

    void theManualPageHasTheOptionsOfHelp()
    {
        QFETCH(QString, help);
        QFETCH(QByteArray, page);
        QVERIFY(optionsOfHelp(help).size() > 4);
        QCOMPARE(optionsOfManualPage(page.constData()), optionsOfHelp(help));
    }

    void everyFaultIsToldWhereItIsLookedFor()
    {
        const QString page = textOf("packaging/man/chambersim.1");
        const QString wire = textOf("docs/wire-format.md");
        const QString rehearsal = textOf("docs/engineer.md");
        for (int kind = 0; kind < Chamber::faultKindCount; ++kind) {
            const QByteArray bytes = Chamber::faultName(static_cast<Chamber::FaultKind>(kind));
            const QString name = QString::fromLatin1(bytes);
            QVERIFY2(page.contains(QRegularExpression("\\b%1\\b"_s.arg(name))), bytes.constData());
            QVERIFY2(wire.contains("\n| `%1` | "_s.arg(name)), bytes.constData());
            QVERIFY2(rehearsal.contains(" --fault %1="_s.arg(name)), bytes.constData());
        }
    }
};

NELVO_TEST_MAIN(HelpPagesTest)
#include "helppages.moc"
