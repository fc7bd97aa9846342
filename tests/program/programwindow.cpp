#include "program/programwindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QWindow>
#include <QtTest>

#include <functional>

namespace {

const QString yellow = QStringLiteral("background-color: rgb(255, 255, 15);");
const QString olive = QStringLiteral("background-color: rgb(185, 185, 105);");

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

} // namespace

bool pickFromMenu(QWidget& label, RowEntry entry)
{
    return rightClick(label, [entry](QMenu& menu) {
        QAction* action = menu.actions().at(static_cast<int>(entry));
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(action).center());
    });
}

QStringList menuOf(QWidget& widget)
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

ProgramWindow::ProgramWindow(Time time)
    : cells(200, QVector<QWidget*>(13, nullptr))
{
    if (time == Time::Driven) {
        held = std::make_unique<HeldTicks>();
        clock = std::make_unique<DrivenClock>();
    }
    qputenv("NELVO_ADAPTER", peer.address().toLatin1());
    main = std::make_unique<MBEMain>();
    if (time == Time::Real) {
        main->findChild<QRadioButton*>(QStringLiteral("TMPCtrlActive"))->setChecked(false);
    }
    for (int i = 0; i < grid()->count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid()->getItemPosition(i, &row, &column, &rows, &columns);
        if (row >= 2) {
            cells[row - 2][column] = grid()->itemAt(i)->widget();
        }
    }
}

void ProgramWindow::show()
{
    main->findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(0);
    main->show();
    if (!QTest::qWaitForWindowExposed(main.get())) {
        qFatal("the window is not shown");
    }
    QCoreApplication::processEvents();
}

QLineEdit* ProgramWindow::setPoint(int row, int ch)
{
    return ch < 7 ? at(row, ch + 1)->findChild<QLineEdit*>() : qobject_cast<QLineEdit*>(at(row, ch + 1));
}

ProgramStep ProgramWindow::row(int row)
{
    ProgramStep step;
    for (int ch = 0; ch < Channels::count; ++ch) {
        step.setPoints[static_cast<size_t>(ch)] = setPoint(row, ch)->text();
    }
    for (int n = 0; n < Channels::shutterCount; ++n) {
        const bool open = shutter(row, n)->styleSheet() == yellow;
        if (shutter(row, n)->text() != QLatin1String(open ? "On" : "Off")
            || (!open && shutter(row, n)->styleSheet() != olive)) {
            qFatal("shutter %d of row %d shows two things", n, row);
        }
        step.shutters[static_cast<size_t>(n)] = open;
    }
    step.timeSec = time(row)->text().toDouble();
    step.group = group(row)->text();
    step.times = times(row)->text().toInt();
    return step;
}

void ProgramWindow::enter(int row, const QString& timeSec, const QString& groupName, const QString& repeats)
{
    time(row)->setText(timeSec);
    group(row)->setText(groupName);
    times(row)->setText(repeats);
}

QFileDialog* ProgramWindow::dialog(const char* name)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(name)) {
            return qobject_cast<QFileDialog*>(widget);
        }
    }
    return nullptr;
}

QVector<int> ProgramWindow::marked()
{
    QVector<int> steps;
    for (int k = 0; k < cells.size(); ++k) {
        if (stepLabel(k)->styleSheet() == yellow) {
            steps.append(stepLabel(k)->text().toInt());
        }
    }
    return steps;
}

QByteArray ProgramWindow::masks()
{
    QByteArray found;
    const QByteArray bytes = peer.received();
    for (int i = 0; i + 2 < bytes.size(); ++i) {
        if (bytes[i] == '\x1B' && bytes[i + 2] == '\n') {
            found.append(bytes[i + 1]);
        }
    }
    return found;
}

void ProgramWindow::forgetCommands()
{
    // The command that closes all shutters when the station starts is the first.
    QTRY_VERIFY(!masks().isEmpty());
    for (int before = -1; before != masks().size();) {
        before = masks().size();
        QTest::qWait(20);
    }
    peer.forget();
}

void ProgramWindow::tick(qint64 afterMs)
{
    DrivenClock::advance(afterMs);
    callSlot(main.get(), "APOneTick");
}

QVector<int> ProgramWindow::play(int maxTicks)
{
    QVector<int> steps;
    for (int i = 0; i < maxTicks && isRunning() && !isWaiting(); ++i) {
        tick();
        // A step that has just started shows "0", a step under way its seconds with a decimal.
        if (isRunning() && label("DispTime01") == QLatin1String("0")) {
            steps += marked();
        }
    }
    return steps;
}
