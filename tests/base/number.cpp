// What counts as a number.

#include "base/number.h"

#include "support/testmain.h"

Q_DECLARE_METATYPE(std::optional<double>)

class NumberTest : public QObject
{
    Q_OBJECT

private slots:
    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<double>>("number");
        const auto row = [](const char* name, const char* text, std::optional<double> number) {
            QTest::newRow(name) << QString::fromUtf8(text) << number;
        };
        row("plain", "12.5", 12.5);
        row("an exponent", "1e3", 1000.0);
        row("zero", "0", 0.0);
        row("blanks around", " -3 ", -3.0);
        row("empty", "", std::nullopt);
        row("blank", " ", std::nullopt);
        row("a word", "hot", std::nullopt);
        row("a comma", "12,5", std::nullopt);
        row("a unit", "850 C", std::nullopt);
        row("full-width digits", "９５０", std::nullopt);
        row("hexadecimal", "0x10", std::nullopt);
        row("inf", "inf", std::nullopt);
        row("minus inf", "-inf", std::nullopt);
        row("nan", "nan", std::nullopt);
        row("too large", "1e999", std::nullopt);
        row("the largest", "1.7976931348623157e308", 1.7976931348623157e308);
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<double>, number);
        QVERIFY(readNumber(text) == number);
        QVERIFY(readNumber(text.toUtf8()) == number);
    }
};

NELVO_TEST_MAIN(NumberTest)
#include "number.moc"
