// An entry for numbers: what a Japanese keyboard gives, what is pasted, and where the cursor is then.

#include "base/numberentry.h"

#include "support/testmain.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

class NumberEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void texts_data();
    void texts();
    void typedTextIsMadePlainAtOnce();
    void composedTextIsMadePlainAtOnce();
    void pastedTextIsMadePlainAtOnce();
    void theCursorStaysWhereItWas();
    void plainTextIsLeftAlone();
    void whatTheProgramSetsStays();
    void inputMethodsAreAskedForLatinNumbers();

private:
    std::unique_ptr<QLineEdit> entry;
};

namespace {

// As a keyboard gives it that has such keys; the toolkit's own simulated one has not.
void typeInto(QLineEdit& entry, const QString& text)
{
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QCoreApplication::sendEvent(&entry, &press);
    }
}

} // namespace

void NumberEntryTest::init()
{
    entry = std::make_unique<QLineEdit>();
    makeNumberEntry(*entry);
}

void NumberEntryTest::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    const auto row = [](const char* name, const char* text, const char* plain) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(plain);
    };
    row("empty", "", "");
    row("plain", "-12.5e3", "-12.5e3");
    row("full-width digits", "９５０", "950");
    row("full-width point and sign", "－１２．５", "-12.5");
    row("blanks", " 8 50 ", "850");
    row("a wide blank", "850　", "850");
    row("a no-break blank", "850\xC2\xA0", "850");
    row("line ends and tabs", "\t850\r\n", "850");
    row("a word stays", "hot", "hot");
    row("a comma stays", "12,5", "12,5");
    row("another script's digits stay", "٩٥٠", "٩٥٠");
}

void NumberEntryTest::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, plain);
    QCOMPARE(plainNumberText(text), plain);
    QCOMPARE(plainNumberText(plain), plain);
}

void NumberEntryTest::typedTextIsMadePlainAtOnce()
{
    typeInto(*entry, QStringLiteral("９"));
    QCOMPARE(entry->text(), QStringLiteral("9"));
    typeInto(*entry, QStringLiteral("５ ０"));
    QCOMPARE(entry->text(), QStringLiteral("950"));
}

void NumberEntryTest::composedTextIsMadePlainAtOnce()
{
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("９５０．５"));
    QCoreApplication::sendEvent(entry.get(), &composed);
    QCOMPARE(entry->text(), QStringLiteral("950.5"));
}

void NumberEntryTest::pastedTextIsMadePlainAtOnce()
{
    QGuiApplication::clipboard()->setText(QStringLiteral(" ８５０\n"));
    entry->paste();
    QCOMPARE(entry->text(), QStringLiteral("850"));
}

void NumberEntryTest::theCursorStaysWhereItWas()
{
    entry->setText(QStringLiteral("10"));
    entry->setCursorPosition(1);
    typeInto(*entry, QStringLiteral("５"));
    QCOMPARE(entry->text(), QStringLiteral("150"));
    QCOMPARE(entry->cursorPosition(), 2);
    typeInto(*entry, QStringLiteral(" "));
    QCOMPARE(entry->cursorPosition(), 2);
}

void NumberEntryTest::plainTextIsLeftAlone()
{
    QSignalSpy edits(entry.get(), &QLineEdit::textEdited);
    typeInto(*entry, QStringLiteral("1.5"));
    QCOMPARE(edits.count(), 3);
    QCOMPARE(entry->text(), QStringLiteral("1.5"));
    QVERIFY(!entry->hasSelectedText());
}

void NumberEntryTest::whatTheProgramSetsStays()
{
    entry->setText(QStringLiteral(" ９５０ "));
    QCOMPARE(entry->text(), QStringLiteral(" ９５０ "));
}

void NumberEntryTest::inputMethodsAreAskedForLatinNumbers()
{
    QVERIFY(entry->inputMethodHints() & Qt::ImhPreferLatin);
    QVERIFY(entry->inputMethodHints() & Qt::ImhFormattedNumbersOnly);
}

NELVO_TEST_MAIN(NumberEntryTest)

#include "numberentry.moc"
