#pragma once

#include "app/mbemain.h"
#include "program/programstep.h"
#include "support/messagecapture.h"
#include "support/scriptedadapter.h"
#include "support/ticks.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QVector>

#include <memory>

/// What a row's menu says, in its order.
enum class RowEntry { Copy, Cut, PasteUp, PasteDown, Undo };

/// Clicks `label` with the right mouse button and then `entry` of the menu that opens. False when none opens.
bool pickFromMenu(QWidget& label, RowEntry entry);

/// Clicks `widget` with the right mouse button, closes the menu that opens, if any, and says its entries.
QStringList menuOf(QWidget& widget);

/// The station's window with its program table, looked at as the operator does, linked to a scripted adapter.
/// The station's timers are held and its clock is driven, or, in real time, its polling is off: the adapter
/// does not answer and would keep the bus.
class ProgramWindow
{
public:
    enum class Time { Driven, Real };
    explicit ProgramWindow(Time time = Time::Driven);

    MBEMain& window() { return *main; }
    ScriptedAdapter& adapter() { return peer; }
    /// Brings the table to the front and waits until it is on the screen.
    void show();

    QGridLayout* grid() { return main->findChild<QGridLayout*>(QStringLiteral("Program")); }
    /// The widget at `column` of the table's row `row` (from 0).
    QWidget* at(int row, int column) { return cells[row][column]; }
    QLabel* stepLabel(int row) { return qobject_cast<QLabel*>(at(row, 0)); }
    QLineEdit* setPoint(int row, int ch);
    QToolButton* shutter(int row, int n) { return at(row, n + 1)->findChild<QToolButton*>(); }
    QLineEdit* time(int row) { return qobject_cast<QLineEdit*>(at(row, 10)); }
    QLineEdit* group(int row) { return qobject_cast<QLineEdit*>(at(row, 11)); }
    QLineEdit* times(int row) { return qobject_cast<QLineEdit*>(at(row, 12)); }

    /// The row as it is shown; an inconsistent shutter button (colour against text) is a fatal error.
    ProgramStep row(int row);
    void enter(int row, const QString& timeSec, const QString& groupName = QString(),
        const QString& repeats = QStringLiteral("1"));

    QString label(const char* name) { return main->findChild<QLabel*>(QLatin1String(name))->text(); }
    /// The shutter commands the instruments received since forgetCommands(): the mask bytes in their order.
    QByteArray masks();
    void forgetCommands();

    QToolButton* button(const char* name) { return main->findChild<QToolButton*>(QLatin1String(name)); }
    QLineEdit* edit(const char* name) { return main->findChild<QLineEdit*>(QLatin1String(name)); }
    QFileDialog* dialog(const char* name);

    /// The numbers of the steps marked as running.
    QVector<int> marked();
    bool isWaiting() { return button("ProgPause")->text() == QLatin1String("Resume"); }
    bool isRunning() { return button("ProgRun")->text() == QLatin1String("Stop"); }

    void tick(qint64 afterMs = 10);
    /// Ticks every 10 ms until the program stops or waits; the steps in the order of their starts.
    QVector<int> play(int maxTicks = 100000);

private:
    QuietPlatform quiet;
    ScriptedAdapter peer;
    std::unique_ptr<HeldTicks> held;
    std::unique_ptr<DrivenClock> clock;
    std::unique_ptr<MBEMain> main;
    QVector<QVector<QWidget*>> cells; // by row and column
};
