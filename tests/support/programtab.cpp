#include "support/programtab.h"

#include "program/programfile.h"
#include "support/panel.h"
#include "support/testtext.h"
#include "support/ticks.h"

#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QScrollArea>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>
#include <QWindow>
#include <QtTest>

#include <functional>

using namespace TestText;

namespace {

constexpr int headerRows = 2;

// Right-clicks and hands the menu that opens to `use`, which must close it. False when none opens.
bool rightClick(QWidget& widget, const std::function<void(QMenu&)>& use)
{
    bool opened = false;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu != nullptr) {
            opened = true;
            use(*menu);
        }
    });
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, Qt::NoModifier,
        widget.mapTo(window, widget.rect().center()));
    QCoreApplication::processEvents();
    return opened;
}

void callWithFile(QObject& window, const char* slot, const QString& fname)
{
    if (!QMetaObject::invokeMethod(&window, slot, Q_ARG(QString, fname))) {
        qFatal("no slot %s", slot);
    }
}

} // namespace

ProgramTab::ProgramTab(QMainWindow& window)
    : main(window)
    , widgets(window)
    , cells(rows, QVector<QWidget*>(ProgramColumns, nullptr))
{
    const QGridLayout& table = grid();
    for (int i = 0; i < table.count(); ++i) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        table.getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        if (row >= headerRows) {
            cells[row - headerRows][column] = table.itemAt(i)->widget();
        }
    }
}

void ProgramTab::show()
{
    widgets.find<QTabWidget>("tabWidget"_s).setCurrentIndex(0);
    main.show();
    if (!QTest::qWaitForWindowExposed(&main)) {
        qFatal("the window is not shown");
    }
    QCoreApplication::processEvents();
}

QGridLayout& ProgramTab::grid() const
{
    return *main.findChild<QGridLayout*>("Program"_s);
}

QLineEdit* ProgramTab::setPoint(int row, int channel) const
{
    QWidget* cell = at(row, FirstCellColumn + channel);
    return channel < Channels::shutterCount ? cell->findChild<QLineEdit*>() : qobject_cast<QLineEdit*>(cell);
}

QToolButton* ProgramTab::shutter(int row, int number) const
{
    return at(row, FirstCellColumn + number)->findChild<QToolButton*>();
}

ProgramStep ProgramTab::step(int row) const
{
    ProgramStep step;
    for (int channel = 0; channel < Channels::count; ++channel) {
        step.setPoints[static_cast<size_t>(channel)] = setPoint(row, channel)->text();
    }
    for (int number = 0; number < Channels::shutterCount; ++number) {
        const QToolButton& button = *shutter(row, number);
        const bool isOpen = button.styleSheet() == yellow;
        if (button.text() != (isOpen ? "On"_s : "Off"_s) || (!isOpen && button.styleSheet() != olive)) {
            qFatal("shutter %d of row %d shows two things", number, row);
        }
        step.shutters[static_cast<size_t>(number)] = isOpen;
    }
    if (stepLabel(row)->text() != QString::number(row + 1)) {
        qFatal("row %d says it is step %s", row, qPrintable(stepLabel(row)->text()));
    }
    step.timeSec = time(row)->text().toDouble();
    step.group = group(row)->text();
    step.times = times(row)->text().toInt();
    return step;
}

QVector<ProgramStep> ProgramTab::steps() const
{
    QVector<ProgramStep> all;
    for (int row = 0; row < rows; ++row) {
        all.append(step(row));
    }
    return all;
}

void ProgramTab::enter(int row, const QString& timeSec, const QString& groupName, const QString& repeats)
{
    time(row)->setText(timeSec);
    group(row)->setText(groupName);
    times(row)->setText(repeats);
}

void ProgramTab::load(const QVector<ProgramStep>& steps)
{
    const QString fname = "loaded.dat"_s;
    QFile file(fname);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        qFatal("cannot write %s", qPrintable(fname));
    }
    QTextStream stream(&file);
    ProgramFile::write(stream, steps);
    stream.flush();
    file.close();
    loadFile(fname);
    QFile::remove(fname);
}

void ProgramTab::loadFile(const QString& fname)
{
    callWithFile(main, "APLoadProg", fname);
}

void ProgramTab::saveFile(const QString& fname)
{
    callWithFile(main, "APSaveProg", fname);
}

bool ProgramTab::pick(int row, RowEntry entry)
{
    // A row out of sight cannot be clicked.
    widgets.find<QScrollArea>("scrollArea"_s).ensureWidgetVisible(stepLabel(row));
    QCoreApplication::processEvents();
    return rightClick(*stepLabel(row), [entry](QMenu& menu) {
        QAction* action = menu.actions().at(static_cast<int>(entry));
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(action).center());
    });
}

QStringList ProgramTab::menuOf(QWidget& widget)
{
    QStringList texts;
    rightClick(widget, [&texts](QMenu& menu) {
        for (const QAction* action : menu.actions()) {
            texts.append(action->text());
        }
        menu.close();
    });
    return texts;
}

QPoint ProgramTab::menuPlace(QWidget& widget)
{
    QPoint place;
    rightClick(widget, [&place](QMenu& menu) {
        place = menu.pos();
        menu.close();
    });
    return place;
}

void ProgramTab::click(const char* name)
{
    QTest::mouseClick(&button(name), Qt::LeftButton);
}

QToolButton& ProgramTab::button(const char* name) const
{
    return widgets.find<QToolButton>("Prog"_s + QLatin1String(name));
}

QString ProgramTab::label(const char* name) const
{
    return widgets.find<QLabel>(QLatin1String(name)).text();
}

bool ProgramTab::isRunning() const
{
    return button("Run").text() == "Stop"_s;
}

bool ProgramTab::isWaiting() const
{
    return button("Pause").text() == "Resume"_s;
}

QVector<int> ProgramTab::marked() const
{
    QVector<int> numbers;
    for (int row = 0; row < rows; ++row) {
        if (stepLabel(row)->styleSheet() == yellow) {
            numbers.append(stepLabel(row)->text().toInt());
        }
    }
    return numbers;
}

void ProgramTab::tick(qint64 afterMs)
{
    DrivenClock::advance(afterMs);
    callSlot(&main, "APOneTick");
}

QVector<int> ProgramTab::play(int maximumTicks)
{
    QVector<int> numbers;
    for (int i = 0; i < maximumTicks && isRunning() && !isWaiting(); ++i) {
        tick();
        // A step that has just started shows "0", a step under way its seconds with a decimal.
        if (isRunning() && label("DispTime01") == "0"_s) {
            numbers += marked();
        }
    }
    return numbers;
}
