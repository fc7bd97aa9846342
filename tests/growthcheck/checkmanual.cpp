// The manual has a line for every kind of finding, with its weight, and for every option.

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

    static QMap<QString, QString> weights(const QString& fileName, const QString& pattern)
    {
        const QRegularExpression line(pattern);
        QMap<QString, QString> found;
        const QString text = QString::fromUtf8(fileText(fileName));
        for (auto next = line.globalMatch(text); next.hasNext();) {
            const QRegularExpressionMatch match = next.next();
            found[match.captured(1)] = match.captured(2).toLower();
        }
        return found;
    }

private slots:
    void everyFindingHasItsLine()
    {
        const QString kind = "Kind \\w+\\{\"([a-z-]+)\", Severity::(\\w+)\\}"_s;
        const QString root = QStringLiteral(NELVO_ROOT);
        QMap<QString, QString> known = weights(root + "/growthcheck/check/kinds.h"_s, kind);
        const QMap<QString, QString> ofRuns = weights(root + "/growthcheck/comparison/runkinds.h"_s, kind);
        QVERIFY(known.size() > 30 && ofRuns.size() > 20);
        for (auto run = ofRuns.begin(); run != ofRuns.end(); ++run) {
            QVERIFY2(!known.contains(run.key()), qPrintable(run.key()));
            known[run.key()] = run.value();
        }
        QCOMPARE(weights(root + "/docs/growthcheck.md"_s,
                     "\\n\\| `([a-z-]+)` \\| (error|warning|note) \\| [^|]+ \\|[^|]*\\|"_s),
            known);
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
