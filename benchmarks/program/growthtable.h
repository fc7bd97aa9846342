#pragma once

#include "app/mbemain.h"
#include "program/programstep.h"
#include "support/ticks.h"

#include <QVector>
#include <QWidget>

#include <memory>

class QMenu;

/// A growth program that fills the table: neighbouring steps differ in every text, and, as in a growth where
/// one source follows the other under arsenic, in two shutters. `allShutters` has all of them change instead.
QVector<ProgramStep> fullProgram(bool allShutters = false);

/// Writes `steps` as a program file.
void saveProgram(const QString& fname, const QVector<ProgramStep>& steps);

/// Handles events until none is left, so that everything has been painted that was to be.
void settle();

/// The station's window on its screen with the program table in front, its polling held.
class ShownStation
{
public:
    ShownStation();
    ~ShownStation();

    MBEMain& window() { return *main; }
    QWidget* at(int row, int column) const { return cells[row][column]; }
    /// Lets the station's timers run, which are held from the start.
    void release() { held.reset(); }
    /// Picks an entry (0 "Copy" to 4 "Undo") of the menu of row 0.
    void pick(int entry);

private:
    std::unique_ptr<HeldTicks> held;
    std::unique_ptr<MBEMain> main;
    QVector<QVector<QWidget*>> cells;
    QMenu* firstMenu = nullptr;
};
