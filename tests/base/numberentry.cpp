// An entry for numbers: what a Japanese keyboard gives, what is pasted, and where the cursor is then.

#include "base/numberentry.h"

#include "base/compatibleform.h"

#include "support/testmain.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

using namespace TestText;

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

class NumberEntryTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QLineEdit> entry;

private slots:
    void init()
    {
        entry = std::make_unique<QLineEdit>();
        makeNumberEntry(*entry);
    }

    void texts_data()
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

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(QString, plain);
        QCOMPARE(plainNumberText(text), plain);
        QCOMPARE(plainNumberText(plain), plain);
    }

    void textsThatAreTooLongForANumberStay()
    {
        const QString longest = "９"_s.repeated(longestCompatible);
        QCOMPARE(plainNumberText(longest), "9"_s.repeated(longestCompatible));
        QCOMPARE(plainNumberText(longest + "９"_s), longest + "９"_s);
        QCOMPARE(plainNumberText(" "_s.repeated(longestCompatible) + "８５０\n"_s), "850"_s);
    }

    // To put combining marks in order takes a time that grows with the square of their number: seconds for
    // what an entry holds.
    void marksOfALongTextAreNotPutInOrder()
    {
        const QString marks = "\u0301\u0316"_s.repeated(entry->maxLength() / 2);
        QGuiApplication::clipboard()->setText(marks);
        entry->paste();
        QCOMPARE(entry->text(), marks);
    }

    void typedTextIsMadePlainAtOnce()
    {
        typeInto(*entry, "９"_s);
        QCOMPARE(entry->text(), "9"_s);
        typeInto(*entry, "５ ０"_s);
        QCOMPARE(entry->text(), "950"_s);
    }

    void composedTextIsMadePlainAtOnce()
    {
        QInputMethodEvent composed;
        composed.setCommitString("９５０．５"_s);
        QCoreApplication::sendEvent(entry.get(), &composed);
        QCOMPARE(entry->text(), "950.5"_s);
    }

    void pastedTextIsMadePlainAtOnce()
    {
        QGuiApplication::clipboard()->setText(" ８５０\n"_s);
        entry->paste();
        QCOMPARE(entry->text(), "850"_s);
    }

    void theCursorStaysWhereItWas()
    {
        entry->setText("10"_s);
        entry->setCursorPosition(1);
        typeInto(*entry, "５"_s);
        QCOMPARE(entry->text(), "150"_s);
        QCOMPARE(entry->cursorPosition(), 2);
        typeInto(*entry, " "_s);
        QCOMPARE(entry->cursorPosition(), 2);
    }

    void plainTextIsLeftAlone()
    {
        QSignalSpy edits(entry.get(), &QLineEdit::textEdited);
        typeInto(*entry, "1.5"_s);
        QCOMPARE(edits.count(), 3);
        QCOMPARE(entry->text(), "1.5"_s);
        QVERIFY(!entry->hasSelectedText());
    }

    void whatTheProgramSetsStays()
    {
        entry->setText(" ９５０ "_s);
        QCOMPARE(entry->text(), " ９５０ "_s);
    }

    void inputMethodsAreAskedForLatinNumbers()
    {
        QVERIFY(entry->inputMethodHints() & Qt::ImhPreferLatin);
        QVERIFY(entry->inputMethodHints() & Qt::ImhFormattedNumbersOnly);
    }
};

NELVO_TEST_MAIN(NumberEntryTest)
#include "numberentry.moc"
