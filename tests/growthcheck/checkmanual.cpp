// The manual has a line for every kind of finding, with its weight, in both languages, and one for every
// option.

#include "growthcheck/support/checkrun.h"
#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"

#include <QMap>
#include <QRegularExpression>

using namespace TestText;

class CheckManualTest : public QObject
{
    Q_OBJECT

    static QMap<QString, QString> weights(const QByteArray& utf8, const QString& pattern)
    {
        const QRegularExpression line(pattern);
        QMap<QString, QString> found;
        const QString text = QString::fromUtf8(utf8);
        for (auto next = line.globalMatch(text); next.hasNext();) {
            const QRegularExpressionMatch match = next.next();
            found[match.captured(1)] = match.captured(2).toLower();
        }
        return found;
    }

private slots:
    void everyFindingHasItsLine_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("English") << "en"_s << QStringList{"error"_s, "warning"_s, "note"_s};
        QTest::newRow("Japanese") << "ja"_s << QStringList{"誤り"_s, "警告"_s, "注記"_s};
    }

    void everyFindingHasItsLine()
    {
        QFETCH(QString, language);
        QFETCH(QStringList, words);
        const QString kind = "Kind \\w+\\{\"([a-z-]+)\", Severity::(\\w+)\\}"_s;
        const QString root = QStringLiteral(NELVO_ROOT);
        QMap<QString, QString> known = weights(fileText(root + "/growthcheck/check/kinds.h"_s), kind);
        const QMap<QString, QString> ofRuns
            = weights(fileText(root + "/growthcheck/comparison/runkinds.h"_s), kind);
        QVERIFY(known.size() > 30 && ofRuns.size() > 20);
        for (auto run = ofRuns.begin(); run != ofRuns.end(); ++run) {
            QVERIFY2(!known.contains(run.key()), qPrintable(run.key()));
            known[run.key()] = run.value();
        }
        const QStringList weightsInEnglish{"error"_s, "warning"_s, "note"_s};
        for (QString& weight : known) {
            weight = words.at(weightsInEnglish.indexOf(weight));
        }
        const QByteArray page = fileText(root + "/docs/manual/%1/findings.md"_s.arg(language));
        QCOMPARE(weights(page, "\\n\\| `([a-z-]+)` \\| (\\S+) \\| [^|]+ \\|[^|]*\\|"_s), known);
    }

    void everyOptionIsExplained()
    {
        const QString help = QString::fromUtf8(runCheck({"--help"_s}).out);
        const QByteArray manual = fileText(QStringLiteral(NELVO_ROOT) + "/docs/growthcheck.md"_s);
        const QRegularExpression option("--[a-z-]{3,}"_s);
        int options = 0;
        for (auto next = option.globalMatch(help); next.hasNext(); ++options) {
            const QByteArray name = next.next().captured().toUtf8();
            QVERIFY2(manual.contains('`' + name), name.constData());
        }
        QVERIFY(options > 12);
    }
};

NELVO_TEST_MAIN(CheckManualTest)
#include "checkmanual.moc"
