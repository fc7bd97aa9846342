// What the random operator does to the program.

#include "soak/randomoperator.h"
#include "soak/screen.h"

#include "support/files.h"

#include <QFile>
#include <QtTest>

using namespace TestText;

namespace {

const QString programFile = "soak.dat"_s;

const QVector<QString>& setPoints()
{
    static const QVector<QString> all
        = {"0"_s, "0"_s, "60"_s, "120.5"_s, "300"_s, "900"_s, "-5"_s, "warm"_s, "1e2"_s, QString()};
    return all;
}

const QVector<QString>& times()
{
    static const QVector<QString> all = {"0.5"_s, "1"_s, "1"_s, "2"_s, "3.25"_s, "5"_s, "10"_s, "20"_s,
        "45"_s, "120"_s, "1e1"_s, "0.001"_s, "4000"_s, "-1"_s, "0"_s, "soon"_s};
    return all;
}

const QVector<QString>& groups()
{
    static const QVector<QString> all
        = {QString(), QString(), "A"_s, "A"_s, "B"_s, "a"_s, "two words"_s, " A"_s, "---NoGroup---"_s};
    return all;
}

const QVector<QString>& repeats()
{
    static const QVector<QString> all
        = {"1"_s, "1"_s, "2"_s, "3"_s, "12"_s, "0"_s, "-4"_s, "2.5"_s, "many"_s, QString(), "2000000000"_s};
    return all;
}

} // namespace

// The first rows count most: they play first.
int RandomOperator::anyRow()
{
    const int area = below(10);
    if (area < 8) {
        return below(10);
    }
    return area == 8 ? ModelProgram::rowCount - 1 - below(5) : below(ModelProgram::rowCount);
}

void RandomOperator::runProgram()
{
    tell("clicks program Run"_s);
    model.program.pressRun(nowMs());
    station.program().click("Run");
}

void RandomOperator::pauseProgram()
{
    tell("clicks Pause"_s);
    model.program.pressPause();
    station.program().click("Pause");
}

void RandomOperator::checkProgram()
{
    tell("clicks Check"_s);
    station.program().click("Check");
    const QString difference = tableDifference(station, model);
    if (!difference.isEmpty()) {
        model.diverge(difference);
    }
}

void RandomOperator::clearTable()
{
    tell("clicks Clear"_s);
    model.program.clear();
    station.program().click("Clear");
}

void RandomOperator::editSetPoint()
{
    const int row = anyRow();
    const int number = anyCell();
    const QString& text = oneOf(setPoints());
    tell("row %1: set point %2 = %3"_s.arg(row).arg(number).arg(text));
    model.program.at(row).setPoints.at(static_cast<size_t>(number)) = text;
    StationWindow::typeInto(*station.program().setPoint(row, number), text);
}

void RandomOperator::editShutter()
{
    const int row = anyRow();
    const int number = anyShutter();
    tell("row %1: shutter %2"_s.arg(row).arg(number));
    bool& open = model.program.at(row).shutters.at(static_cast<size_t>(number));
    open = !open;
    QTest::mouseClick(station.program().shutter(row, number), Qt::LeftButton);
}

void RandomOperator::editTime()
{
    const int row = anyRow();
    const QString& text = oneOf(times());
    tell("row %1: time = %2"_s.arg(row).arg(text));
    model.program.at(row).time = text;
    StationWindow::typeInto(*station.program().time(row), text);
}

void RandomOperator::editGroup()
{
    const int row = anyRow();
    const QString& text = oneOf(groups());
    tell("row %1: group = %2"_s.arg(row).arg(text));
    model.program.at(row).group = text;
    StationWindow::typeInto(*station.program().group(row), text);
}

void RandomOperator::editTimes()
{
    const int row = anyRow();
    const QString& text = oneOf(repeats());
    tell("row %1: times = %2"_s.arg(row).arg(text));
    model.program.at(row).times = text;
    StationWindow::typeInto(*station.program().times(row), text);
}

void RandomOperator::useRowMenu()
{
    const int row = anyRow();
    const auto entry = static_cast<RowEntry>(below(5));
    tell("row %1: menu entry %2"_s.arg(row).arg(static_cast<int>(entry)));
    station.program().show();
    if (!station.program().pick(row, entry)) {
        model.diverge("a row's menu did not open"_s);
    }
    switch (entry) {
    case RowEntry::Copy:
        model.program.copy(row);
        break;
    case RowEntry::Cut:
        model.program.cut(row);
        break;
    case RowEntry::PasteUp:
        model.program.pasteUp(row);
        break;
    case RowEntry::PasteDown:
        model.program.pasteDown(row);
        break;
    case RowEntry::Undo:
        break;
    }
}

// A line of a program file, or now and then one that is none.
QByteArray RandomOperator::programLine(int number)
{
    if (below(12) == 0) {
        return oneOf(QVector<QByteArray>{"", "# a remark\n", "1 2 3\n", "\t \t\n"});
    }
    QByteArray line = QByteArray::number(number);
    for (int n = 0; n < ModelCells::count; ++n) {
        const QString& text = oneOf(setPoints());
        line += '\t' + (text.isEmpty() ? QByteArray("0") : text.toUtf8());
    }
    for (int n = 0; n < ModelShutters::count; ++n) {
        line += below(2) == 0 ? "\t0" : "\t1";
    }
    line += '\t' + oneOf(times()).toUtf8();
    line += '\t' + oneOf(QVector<QByteArray>{"---NoGroup---", "A", "B", "two words"});
    return line + '\t' + oneOf(QVector<QByteArray>{"1", "2", "3", "0"}) + '\n';
}

void RandomOperator::loadProgram()
{
    const int lines = below(8) == 0 ? 195 + below(15) : below(12);
    QByteArray text;
    for (int k = 0; k < lines; ++k) {
        text += programLine(k);
    }
    tell("loads %1 lines"_s.arg(lines));
    putFile(programFile, text);
    model.program.load(text);
    station.program().loadFile(programFile);
    QFile::remove(programFile);
    if (!model.program.isRunning()) {
        runProgram();
    }
}

void RandomOperator::loadRubbish()
{
    tell("loads what is no program"_s);
    // A folder and a file that is not there leave the table as it is, a file of other bytes clears it.
    if (below(2) == 0) {
        station.program().loadFile(below(2) == 0 ? "."_s : "missing.dat"_s);
        return;
    }
    const QByteArray bytes = QByteArray(below(5000), '\0') + "\xFF\xFE\x80 abc\n";
    putFile(programFile, bytes);
    model.program.load(bytes);
    station.program().loadFile(programFile);
    QFile::remove(programFile);
}

void RandomOperator::saveProgram()
{
    tell("saves"_s);
    station.program().saveFile(programFile);
    if (fileText(programFile) != model.program.saved()) {
        model.diverge("the program was saved as "_s + QString::fromUtf8(fileText(programFile)));
    }
    QFile::remove(programFile);
}
