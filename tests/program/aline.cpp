// One row of the program table, its widgets and its values.

#include "program/aline.h"

#include "support/panel.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

using namespace TestText;

namespace {

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
    QToolButton* button(int n) { return at(FirstCellColumn + n)->findChild<QToolButton*>(); }
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

class ALineTest : public QObject
{
    Q_OBJECT

private slots:
    void newRowIsUnused()
    {
        PlacedRow row;
        for (int column = FirstCellColumn; column < ProgramColumns; ++column) {
            QLineEdit* edit = row.edit(column);
            QCOMPARE(edit->text(), column == GroupColumn ? QString() : column == TimesColumn ? "1"_s : "0"_s);
            QCOMPARE(edit->styleSheet(), white);
            QVERIFY(edit->alignment() & Qt::AlignRight);
        }
        for (int n = 0; n < Channels::shutterCount; ++n) {
            QCOMPARE(row.button(n)->text(), "Off"_s);
            QCOMPARE(row.button(n)->styleSheet(), olive);
            QCOMPARE(row.button(n)->maximumHeight(), 20);
            QCOMPARE(row.edit(FirstCellColumn + n)->minimumWidth(), 50);
            QVERIFY(!row.line.shutter(n));
        }
        QCOMPARE(row.line.contents(), ProgramStep());
        QCOMPARE(row.line.tempCount(), Channels::count);
        QCOMPARE(row.line.shutterCount(), Channels::shutterCount);
    }

    void widgetsStandInTheirColumns_data()
    {
        QTest::addColumn<bool>("builtInPlace");
        QTest::newRow("built where it stays") << true;
        QTest::newRow("moved into the grid") << false;
    }

    void widgetsStandInTheirColumns()
    {
        QFETCH(bool, builtInPlace);
        PlacedRow row(builtInPlace);
        auto* label = qobject_cast<QLabel*>(row.at(StepColumn));
        QVERIFY(label != nullptr);
        QCOMPARE(label->frameShape(), QFrame::StyledPanel);
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignCenter));
        QCOMPARE(label->contextMenuPolicy(), Qt::CustomContextMenu);
        for (int column = FirstCellColumn; column < FirstSubstrateColumn; ++column) {
            QLayout* box = row.at(column)->layout();
            QCOMPARE(box->spacing(), 1);
            QCOMPARE(box->contentsMargins(), QMargins());
            QVERIFY(qobject_cast<QLineEdit*>(box->itemAt(0)->widget()) != nullptr);
            QVERIFY(qobject_cast<QToolButton*>(box->itemAt(1)->widget()) != nullptr);
        }
        for (int column = 0; column < ProgramColumns; ++column) {
            QCOMPARE(row.at(column)->parentWidget(), &row.window);
        }
        QVERIFY(row.grid->itemAtPosition(5, ProgramColumns) == nullptr);

        // Which edit is which: each shows what is set through the row.
        for (int ch = 0; ch < Channels::count; ++ch) {
            row.line.setTempText(ch, QString::number(ch + 100));
            QCOMPARE(row.edit(FirstCellColumn + ch)->text(), QString::number(ch + 100));
        }
        row.line.setTime(3.0);
        row.line.setGroup("G"_s);
        row.line.setTimes(4);
        QCOMPARE(row.edit(TimeColumn)->text(), "3"_s);
        QCOMPARE(row.edit(GroupColumn)->text(), "G"_s);
        QCOMPARE(row.edit(TimesColumn)->text(), "4"_s);
    }

    void everyEntryButTheGroupMakesNumbersPlain()
    {
        PlacedRow row;
        const QString typed = " ８５０ "_s;
        QGuiApplication::clipboard()->setText(typed);
        for (int column = FirstCellColumn; column < ProgramColumns; ++column) {
            QLineEdit* edit = row.edit(column);
            edit->selectAll();
            edit->paste();
            QCOMPARE(edit->text(), column == GroupColumn ? typed : "850"_s);
            QCOMPARE(edit->inputMethodHints().testFlag(Qt::ImhPreferLatin), column != GroupColumn);
        }
    }

    void shutterClickedTwiceIsAsBefore()
    {
        PlacedRow row;
        for (int n = 0; n < Channels::shutterCount; ++n) {
            QTest::mouseClick(row.button(n), Qt::LeftButton);
            QCOMPARE(row.button(n)->text(), "On"_s);
            QCOMPARE(row.button(n)->styleSheet(), yellow);
            for (int other = 0; other < Channels::shutterCount; ++other) {
                QCOMPARE(row.line.shutter(other), other == n);
            }
            QTest::mouseClick(row.button(n), Qt::LeftButton);
            QCOMPARE(row.button(n)->text(), "Off"_s);
            QCOMPARE(row.button(n)->styleSheet(), olive);
            QVERIFY(!row.line.shutter(n));
        }
    }

    void turningWithoutAButtonChangesNothing()
    {
        PlacedRow row;
        row.line.TurnSs();
        QToolButton stranger;
        connect(&stranger, SIGNAL(clicked()), &row.line, SLOT(TurnSs()));
        stranger.click();
        QCOMPARE(row.line.contents(), ProgramStep());
    }

    void timeIsShownWithSixDigits_data()
    {
        QTest::addColumn<double>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("12.5") << 12.5 << "12.5"_s;
        QTest::newRow("six digits") << 123456.7 << "123457"_s;
        QTest::newRow("a million") << 1000000.0 << "1e+06"_s;
        QTest::newRow("more") << 12345678.0 << "1.23457e+07"_s;
        QTest::newRow("hold") << -1.0 << "-1"_s;
        QTest::newRow("short") << 0.001 << "0.001"_s;
    }

    void timeIsShownWithSixDigits()
    {
        QFETCH(double, time);
        QFETCH(QString, text);
        PlacedRow row;
        row.line.setTime(time);
        QCOMPARE(row.edit(TimeColumn)->text(), text);
    }

    void channelsSevenAndEightAreTheSubstrates()
    {
        PlacedRow row;
        const int main = Channels::shutterCount;
        row.edit(FirstSubstrateColumn)->setText("580.5"_s);
        row.edit(FirstSubstrateColumn + 1)->setText("300"_s);
        QCOMPARE(row.line.tempText(main), "580.5"_s);
        QCOMPARE(row.line.temp(main), 580.5);
        QCOMPARE(row.line.temp(main + 1), 300.0);
        QCOMPARE(row.line.temp(main - 1), 0.0);
    }

    void textsThatAreNoNumbersCountAsZero()
    {
        PlacedRow row;
        for (const char* text : {"", "hot", "nan", "inf", "1e999", "1,5"}) {
            for (const int column : {FirstCellColumn, TimeColumn, TimesColumn}) {
                row.edit(column)->setText(QLatin1String(text));
            }
            QCOMPARE(row.line.temp(0), 0.0);
            QCOMPARE(row.line.time(), 0.0);
            QCOMPARE(row.line.times(), 0);
        }
        row.edit(TimesColumn)->setText("2.5"_s);
        QCOMPARE(row.line.times(), 0);
        row.edit(TimesColumn)->setText("0x10"_s);
        QCOMPARE(row.line.times(), 0);
        row.edit(TimesColumn)->setText("010"_s);
        QCOMPARE(row.line.times(), 10);
    }

    void markColoursTheStepOnly()
    {
        PlacedRow row;
        row.line.setStep(17);
        auto* label = qobject_cast<QLabel*>(row.at(StepColumn));
        QCOMPARE(label->text(), "17"_s);
        QCOMPARE(label->styleSheet(), QString());
        row.line.setMark(true);
        QCOMPARE(label->styleSheet(), yellow);
        QCOMPARE(row.edit(FirstCellColumn)->styleSheet(), white);
        row.line.setMark(false);
        QCOMPARE(label->styleSheet(), QString());
    }

    void contentsTravelWhole()
    {
        ProgramStep step;
        for (size_t ch = 0; ch < Channels::count; ++ch) {
            step.setPoints.at(ch) = "text %1"_s.arg(ch);
        }
        step.shutters = {true, false, true, false, true, false, true};
        step.timeSec = -2.5;
        step.group = " A b "_s;
        step.times = -3;
        PlacedRow row;
        row.line.setStep(9);
        row.line.setMark(true);
        row.line.setContents(step);
        QCOMPARE(row.line.contents(), step);
        auto* label = qobject_cast<QLabel*>(row.at(StepColumn));
        QCOMPARE(label->text(), "9"_s);
        QCOMPARE(label->styleSheet(), yellow);
    }

    void copyingMakesNumbersOfTimeAndTimes()
    {
        PlacedRow source;
        PlacedRow target;
        source.edit(TimeColumn)->setText("soon"_s);
        source.edit(TimesColumn)->setText("often"_s);
        source.edit(FirstCellColumn)->setText(" 007 "_s);
        target.line.setContents(source.line.contents());
        QCOMPARE(target.edit(TimeColumn)->text(), "0"_s);
        QCOMPARE(target.edit(TimesColumn)->text(), "0"_s);
        QCOMPARE(target.edit(FirstCellColumn)->text(), " 007 "_s);
        source.edit(TimeColumn)->setText("0012.3456789"_s);
        target.line.setContents(source.line.contents());
        QCOMPARE(target.edit(TimeColumn)->text(), "12.3457"_s);
    }

    void rowNeverPlacedCleansUp()
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

    void signalsAndSlotsKeepTheirNames()
    {
        const QMetaObject& meta = aLine::staticMetaObject;
        QStringList names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            names.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(names.join(QLatin1Char(' ')),
            "copy() cut() pasteUp() pasteDown() undo() TurnSs() PopUpEMenu(QPoint)"_s);
    }
};

NELVO_TEST_MAIN(ALineTest)
#include "aline.moc"
