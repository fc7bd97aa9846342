// The language that the command line and the program's name choose.

#include "app/language.h"

#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTranslator>

using namespace TestText;

namespace {

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

class LanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void chosenFromTheArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("english");

        QTest::newRow("no arguments at all") << QStringList() << false;
        QTest::newRow("no switch: Japanese") << words("Nelvo") << false;
        QTest::newRow("-j") << words("Nelvo -j") << false;
        QTest::newRow("-e") << words("Nelvo -e") << true;
        QTest::newRow("last wins: -e -j") << words("Nelvo -e -j") << false;
        QTest::newRow("last wins: -j -e") << words("Nelvo -j -e") << true;
        QTest::newRow("last wins: -e -j -e") << words("Nelvo -e -j -e") << true;
        QTest::newRow("upper case is no switch") << words("Nelvo -E") << false;
        QTest::newRow("upper-case J does not undo -e") << words("Nelvo -e -J") << true;
        QTest::newRow("anywhere among other arguments") << words("Nelvo x --style -e y") << true;
        QTest::newRow("longer words are no switch") << words("Nelvo -english -ej --e e -e=1") << false;
        QTest::newRow("a switch with a space is none") << QStringList{words("Nelvo")[0], "-e "_s} << false;
        QTest::newRow("Nelvoe") << words("Nelvoe") << true;
        QTest::newRow("Nelvoe with -j") << words("Nelvoe -j") << true;
        QTest::newRow("in a directory's name") << words("/opt/Nelvoe-1.0/Nelvo -j") << true;
        QTest::newRow("in the middle of the file's name") << words("C:\\lab\\MyNelvoes.exe -j") << true;
        QTest::newRow("other case is another name") << words("/opt/nelvoe/NELVOE") << false;
        QTest::newRow("only the program's own path counts") << words("Nelvo Nelvoe /opt/Nelvoe") << false;
        QTest::newRow("a switch in the program's place is none") << words("-e") << false;
    }

    void chosenFromTheArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, english);
        QCOMPARE(&chooseLanguage(arguments) == &::english(), english);
        QCOMPARE(&chooseLanguage(arguments) == &japanese(), !english);
    }

    void catalogueLiesAtTheResourceRoot()
    {
        QTranslator translator;
        QCOMPARE(japanese().catalogue, ":Nelvo_ja_JP"_s);
        QVERIFY(speak(japanese(), translator));
        QVERIFY(QFile::exists(":/Nelvo_ja_JP.qm"_s));
        QCOMPARE(QCoreApplication::translate("MBEMain", "Stop"), "停止"_s);
    }

    // The test brings a catalogue of its own along, as the program would that had one more.
    void anotherCatalogueIsAnotherLanguage()
    {
        const Language& another = chooseLanguage(words("Nelvo -e -eo"));
        QCOMPARE(another.catalogue, ":Nelvo_eo_EO"_s);
        QTranslator translator;
        QVERIFY(speak(another, translator));
        QCOMPARE(QCoreApplication::translate("MBEMain", "Stop"), "Haltu"_s);
        QCOMPARE(QCoreApplication::translate("MBEMain", "Pause"), "Pause"_s);
    }

    void thereIsALanguageForEachCatalogueAndEnglish()
    {
        QStringList listed;
        for (const Language& language : languages()) {
            listed.append(language.catalogue);
        }
        listed.sort();
        QStringList expected{QString()};
        for (const QString& name : QDir(":/"_s).entryList({"Nelvo_*.qm"_s})) {
            expected.append(":"_s + name.chopped(3));
        }
        expected.sort();
        QCOMPARE(listed, expected);
    }

    void theToolkitsDialogsFollow()
    {
        QTranslator translator;
        QVERIFY(!speakInDialogs(english(), translator));
        QCOMPARE(QCoreApplication::translate("QFileDialog", "Look in:"), "Look in:"_s);
        const bool isDebian = QFile::exists("/etc/debian_version"_s); // whose packages the tests ask for
        if (!speakInDialogs(japanese(), translator) && !isDebian) {
            QSKIP("the toolkit's catalogues are not installed");
        }
        const QString lookIn = QCoreApplication::translate("QFileDialog", "Look in:");
        QVERIFY2(lookIn != "Look in:"_s, qPrintable(lookIn));
    }

    // As on Windows, where the packages bring it along. The made-up catalogue plays the toolkit's.
    void theToolkitsCatalogueMayLieBesideTheProgram()
    {
        const QDir beside(QCoreApplication::applicationDirPath() + "/translations"_s);
        const bool wasThere = beside.exists();
        const QString catalogue = beside.filePath("qtbase_eo.qm"_s);
        QVERIFY(beside.mkpath("."_s));
        QFile::remove(catalogue);
        QVERIFY(QFile::copy(":/Nelvo_eo_EO.qm"_s, catalogue));
        QTranslator translator;
        const bool isSpoken = speakInDialogs(chooseLanguage(words("Nelvo -eo")), translator);
        QFile::setPermissions(catalogue, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(QFile::remove(catalogue));
        QVERIFY(wasThere || QDir().rmdir(beside.path()));
        QVERIFY(isSpoken);
        QCOMPARE(QCoreApplication::translate("MBEMain", "Stop"), "Haltu"_s);
    }

    void englishNeedsNoCatalogue()
    {
        QTranslator translator;
        QVERIFY(!speak(english(), translator));
        QCOMPARE(QCoreApplication::translate("MBEMain", "Stop"), "Stop"_s);
    }
};

NELVO_TEST_MAIN(LanguageTest)
#include "language.moc"
