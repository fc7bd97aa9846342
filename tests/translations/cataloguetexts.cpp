// The catalogues hold every text of the program, translated, with the places to fill in, and none that is
// gone.

#include "support/testmain.h"
#include "support/testtext.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace TestText;

namespace {

struct Entry
{
    QString translation;
    QString state; ///< "unfinished", "vanished", "obsolete"; empty for a good one
};

// By context and source text.
using Catalogue = QMap<QPair<QString, QString>, Entry>;

Catalogue readCatalogue(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(name));
    }
    Catalogue catalogue;
    QString context;
    QString source;
    QXmlStreamReader xml(&file);
    while (xml.readNext() != QXmlStreamReader::EndDocument) {
        if (xml.hasError()) {
            qFatal("%s: %s", qPrintable(name), qPrintable(xml.errorString()));
        }
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == "name"_s) {
            context = xml.readElementText();
        } else if (xml.name() == "source"_s) {
            source = xml.readElementText();
        } else if (xml.name() == "translation"_s) {
            const QString state = xml.attributes().value("type"_s).toString();
            catalogue[{context, source}] = {xml.readElementText(), state};
        }
    }
    return catalogue;
}

// The places to fill in ("%1", "%n"), sorted.
QStringList placesIn(const QString& text)
{
    static const QRegularExpression place("%(?:L?[0-9]{1,2}|n)"_s);
    QStringList places;
    for (auto found = place.globalMatch(text); found.hasNext();) {
        places.append(found.next().captured());
    }
    places.sort();
    return places;
}

} // namespace

class CatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTextHasItsTranslation_data()
    {
        QTest::addColumn<QString>("catalogue");
        QTest::addColumn<QStringList>("sources");
        const QString root = QStringLiteral(NELVO_ROOT);
        const QDir translations(root + "/src/translations"_s);
        const QStringList names = translations.entryList({"Nelvo_*.ts"_s});
        QVERIFY(!names.isEmpty());
        for (const QString& name : names) {
            QTest::newRow(qPrintable(name)) << translations.filePath(name) << QStringList{root + "/src"_s};
        }
        // It has the channels' names too.
        QTest::newRow("growthcheck") << root + "/growthcheck/translations/growthcheck_ja_JP.ts"_s
                                     << QStringList{root + "/growthcheck"_s, root + "/src/base/channels.h"_s};
    }

    void everyTextHasItsTranslation()
    {
        QFETCH(QString, catalogue);
        const Catalogue entries = readCatalogue(catalogue);
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            const QByteArray source = entry.key().second.toUtf8();
            QVERIFY2(entry->state.isEmpty(), source + " is " + entry->state.toUtf8());
            QVERIFY2(source.isEmpty() == entry->translation.isEmpty(), source + " has no translation");
            QVERIFY2(placesIn(entry->translation) == placesIn(entry.key().second), source + " lost a place");
        }
    }

    void itHoldsTheTextsOfTheSourcesAndNoOthers_data() { everyTextHasItsTranslation_data(); }

    void itHoldsTheTextsOfTheSourcesAndNoOthers()
    {
#ifdef Q_OS_WIN
        QSKIP("lupdate is the building system's, which runs this test itself");
#endif
        QFETCH(QString, catalogue);
        QFETCH(QStringList, sources);
        const QString fresh = QDir::current().filePath("fresh.ts"_s);
        QFile::remove(fresh);
        QVERIFY(QFile::copy(catalogue, fresh));
        QProcess lupdate;
        lupdate.setProcessChannelMode(QProcess::MergedChannels);
        lupdate.start(QStringLiteral(LUPDATE_PROGRAM),
            QStringList{"-silent"_s, "-locations"_s, "none"_s, "-no-obsolete"_s} + sources
                + QStringList{"-ts"_s, fresh});
        QVERIFY2(lupdate.waitForFinished(), qPrintable(lupdate.errorString()));
        QVERIFY2(lupdate.exitCode() == 0, lupdate.readAll().constData());
        // To mend: lupdate -locations none -no-obsolete SOURCES -ts CATALOGUE, then translate.
        QCOMPARE(readCatalogue(catalogue).keys(), readCatalogue(fresh).keys());
    }
};

NELVO_TEST_MAIN(CatalogueTest)
#include "cataloguetexts.moc"
