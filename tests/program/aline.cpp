#include "program/aline.h"

#include "support/testmain.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

namespace {

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");
const QString white = QStringLiteral("background-color: rgb(255, 255, 255);");

// A row in a window of its own, as the table holds it.
struct PlacedRow
{
    explicit PlacedRow(bool builtInPlace = true)
        : grid(new QGridLayout(&window))
        , line(builtInPlace ? &window : nullptr)
    {
        line.placeInGrid(grid, 5);
    }

    QWidget* at(int column) { return grid->itemAtPosition(5, column)->widget(); }
    QToolButton* button(int n) { return at(n + 1)->findChild<QToolButton*>(); }
    QLineEdit* edit(int column)
    {
        auto* edit = qobject_cast<QLineEdit*>(at(column));
        return edit != nullptr ? edit : at(column)->findChild<QLineEdit*>();
    }

    QWidget window;
    QGridLayout* grid;
    aLine line;
};

} // namespace

class TestALine : public QObject
{
    Q_OBJECT

private slots:
    void newRowIsUnused();
    void widgetsStandInTheirColumns_data();
    void widgetsStandInTheirColumns();
    void shutterClickedTwiceIsAsBefore();
    void turningWithoutAButtonChangesNothing();
    void timeIsShownWithSixDigits_data();
    void timeIsShownWithSixDigits();
    void channelsSevenAndEightAreTheSubstrates();
    void textsThatAreNoNumbersCountAsZero();
    void markColoursTheStepOnly();
    void contentsTravelWhole();
    void copyingMakesNumbersOfTimeAndTimes();
    void rowNeverPlacedCleansUp();
    void signalsAndSlotsKeepTheirNames();
};

void TestALine::newRowIsUnused()
{
    PlacedRow row;
    for (int column = 1; column <= 12; ++column) {
        QLineEdit* edit = row.edit(column);
        QCOMPARE(edit->text(), column == 11 ? QString() : QLatin1String(column == 12 ? "1" : "0"));
        QCOMPARE(edit->styleSheet(), white);
        QVERIFY(edit->alignment() & Qt::AlignRight);
    }
    for (int n = 0; n < 7; ++n) {
        QCOMPARE(row.button(n)->text(), QStringLiteral("Off"));
        QCOMPARE(row.button(n)->styleSheet(), olive);
        QCOMPARE(row.button(n)->maximumHeight(), 20);
        QCOMPARE(row.edit(n + 1)->minimumWidth(), 50);
        QVERIFY(!row.line.shutter(n));
    }
    QCOMPARE(row.line.contents(), ProgramStep());
    QCOMPARE(row.line.tempCount(), 9);
    QCOMPARE(row.line.shutterCount(), 7);
}

void TestALine::widgetsStandInTheirColumns_data()
{
    QTest::addColumn<bool>("builtInPlace");
    QTest::newRow("built where it stays") << true;
    QTest::newRow("moved into the grid") << false;
}

void TestALine::widgetsStandInTheirColumns()
{
    QFETCH(bool, builtInPlace);
    PlacedRow row(builtInPlace);
    auto* label = qobject_cast<QLabel*>(row.at(0));
    QVERIFY(label != nullptr);
    QCOMPARE(label->frameShape(), QFrame::StyledPanel);
    QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(label->contextMenuPolicy(), Qt::CustomContextMenu);
    for (int column = 1; column <= 7; ++column) {
        QLayout* box = row.at(column)->layout();
        QCOMPARE(box->spacing(), 1);
        QCOMPARE(box->contentsMargins(), QMargins());
        QVERIFY(qobject_cast<QLineEdit*>(box->itemAt(0)->widget()) != nullptr);
        QVERIFY(qobject_cast<QToolButton*>(box->itemAt(1)->widget()) != nullptr);
    }
    for (int column = 0; column <= 12; ++column) {
        QCOMPARE(row.at(column)->parentWidget(), &row.window);
    }
    QVERIFY(row.grid->itemAtPosition(5, 13) == nullptr);

    // Which edit is which: each shows what is set through the row.
    for (int ch = 0; ch < 9; ++ch) {
        row.line.setTempText(ch, QString::number(ch + 100));
        QCOMPARE(row.edit(ch + 1)->text(), QString::number(ch + 100));
    }
    row.line.setTime(3.0);
    row.line.setGroup(QStringLiteral("G"));
    row.line.setTimes(4);
    QCOMPARE(row.edit(10)->text(), QStringLiteral("3"));
    QCOMPARE(row.edit(11)->text(), QStringLiteral("G"));
    QCOMPARE(row.edit(12)->text(), QStringLiteral("4"));
}

void TestALine::shutterClickedTwiceIsAsBefore()
{
    PlacedRow row;
    for (int n = 0; n < 7; ++n) {
        QTest::mouseClick(row.button(n), Qt::LeftButton);
        QCOMPARE(row.button(n)->text(), QStringLiteral("On"));
        QCOMPARE(row.button(n)->styleSheet(), yellow);
        for (int other = 0; other < 7; ++other) {
            QCOMPARE(row.line.shutter(other), other == n);
        }
        QTest::mouseClick(row.button(n), Qt::LeftButton);
        QCOMPARE(row.button(n)->text(), QStringLiteral("Off"));
        QCOMPARE(row.button(n)->styleSheet(), olive);
        QVERIFY(!row.line.shutter(n));
    }
}

void TestALine::turningWithoutAButtonChangesNothing()
{
    PlacedRow row;
    row.line.TurnSs();
    QToolButton stranger;
    connect(&stranger, SIGNAL(clicked()), &row.line, SLOT(TurnSs()));
    stranger.click();
    QCOMPARE(row.line.contents(), ProgramStep());
}

void TestALine::timeIsShownWithSixDigits_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("text");
    QTest::newRow("12.5") << 12.5 << QStringLiteral("12.5");
    QTest::newRow("six digits") << 123456.7 << QStringLiteral("123457");
    QTest::newRow("a million") << 1000000.0 << QStringLiteral("1e+06");
    QTest::newRow("more") << 12345678.0 << QStringLiteral("1.23457e+07");
    QTest::newRow("hold") << -1.0 << QStringLiteral("-1");
    QTest::newRow("short") << 0.001 << QStringLiteral("0.001");
}

void TestALine::timeIsShownWithSixDigits()
{
    QFETCH(double, time);
    QFETCH(QString, text);
    PlacedRow row;
    row.line.setTime(time);
    QCOMPARE(row.edit(10)->text(), text);
}

void TestALine::channelsSevenAndEightAreTheSubstrates()
{
    PlacedRow row;
    row.edit(8)->setText(QStringLiteral("580.5"));
    row.edit(9)->setText(QStringLiteral("300"));
    QCOMPARE(row.line.tempText(7), QStringLiteral("580.5"));
    QCOMPARE(row.line.temp(7), 580.5);
    QCOMPARE(row.line.temp(8), 300.0);
    QCOMPARE(row.line.temp(6), 0.0);
}

void TestALine::textsThatAreNoNumbersCountAsZero()
{
    PlacedRow row;
    for (const char* text : {"", "hot", "nan", "inf", "1e999", "1,5"}) {
        for (const int column : {1, 10, 12}) {
            row.edit(column)->setText(QLatin1String(text));
        }
        QCOMPARE(row.line.temp(0), 0.0);
        QCOMPARE(row.line.time(), 0.0);
        QCOMPARE(row.line.times(), 0);
    }
    row.edit(12)->setText(QStringLiteral("2.5"));
    QCOMPARE(row.line.times(), 0);
}

void TestALine::markColoursTheStepOnly()
{
    PlacedRow row;
    row.line.setStep(17);
    auto* label = qobject_cast<QLabel*>(row.at(0));
    QCOMPARE(label->text(), QStringLiteral("17"));
    QCOMPARE(label->styleSheet(), QString());
    row.line.setMark(true);
    QCOMPARE(label->styleSheet(), yellow);
    QCOMPARE(row.edit(1)->styleSheet(), white);
    row.line.setMark(false);
    QCOMPARE(label->styleSheet(), QString());
}

void TestALine::contentsTravelWhole()
{
    ProgramStep step;
    for (size_t ch = 0; ch < 9; ++ch) {
        step.setPoints.at(ch) = QStringLiteral("text %1").arg(ch);
    }
    step.shutters = {true, false, true, false, true, false, true};
    step.timeSec = -2.5;
    step.group = QStringLiteral(" A b ");
    step.times = -3;
    PlacedRow row;
    row.line.setStep(9);
    row.line.setMark(true);
    row.line.setContents(step);
    QCOMPARE(row.line.contents(), step);
    auto* label = qobject_cast<QLabel*>(row.at(0));
    QCOMPARE(label->text(), QStringLiteral("9"));
    QCOMPARE(label->styleSheet(), yellow);
}

void TestALine::copyingMakesNumbersOfTimeAndTimes()
{
    PlacedRow source;
    PlacedRow target;
    source.edit(10)->setText(QStringLiteral("soon"));
    source.edit(12)->setText(QStringLiteral("often"));
    source.edit(1)->setText(QStringLiteral(" 007 "));
    target.line.setContents(source.line.contents());
    QCOMPARE(target.edit(10)->text(), QStringLiteral("0"));
    QCOMPARE(target.edit(12)->text(), QStringLiteral("0"));
    QCOMPARE(target.edit(1)->text(), QStringLiteral(" 007 "));
    source.edit(10)->setText(QStringLiteral("0012.3456789"));
    target.line.setContents(source.line.contents());
    QCOMPARE(target.edit(10)->text(), QStringLiteral("12.3457"));
}

void TestALine::rowNeverPlacedCleansUp()
{
    const int before = QApplication::allWidgets().size();
    {
        aLine line;
        QVERIFY(QApplication::allWidgets().size() > before);
    }
    QCOMPARE(QApplication::allWidgets().size(), before);
    {
        PlacedRow row;
    }
    QCOMPARE(QApplication::allWidgets().size(), before);
}

void TestALine::signalsAndSlotsKeepTheirNames()
{
    const QMetaObject& meta = aLine::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(names.join(QLatin1Char(' ')),
        QStringLiteral("copy() cut() pasteUp() pasteDown() undo() TurnSs() PopUpEMenu(QPoint)"));
}

NELVO_TEST_MAIN(TestALine)
#include "aline.moc"
