#pragma once

#include "program/programstep.h"

#include "support/namedwidgets.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPoint>
#include <QToolButton>
#include <QVector>

/// What a row's menu says, in its order.
enum class RowEntry { Copy, Cut, PasteUp, PasteDown, Undo };

/// The program tab of a station's window, looked at and used as the operator does: the table, row by row, the
/// bar of buttons over it, and the player's ticks. Rows count from 0, the steps they show from 1.
class ProgramTab
{
public:
    static constexpr int rows = 200;

    /// `window` must outlive this.
    explicit ProgramTab(QMainWindow& window);

    /// Brings the tab to the front and waits until it is on the screen.
    void show();

    QGridLayout& grid() const;
    /// The widget at `column` (a ProgramColumn) of `row`.
    QWidget* at(int row, int column) const { return cells[row][column]; }
    QLabel* stepLabel(int row) const { return qobject_cast<QLabel*>(at(row, StepColumn)); }
    QLineEdit* setPoint(int row, int channel) const;
    QToolButton* shutter(int row, int number) const;
    QLineEdit* time(int row) const { return qobject_cast<QLineEdit*>(at(row, TimeColumn)); }
    QLineEdit* group(int row) const { return qobject_cast<QLineEdit*>(at(row, GroupColumn)); }
    QLineEdit* times(int row) const { return qobject_cast<QLineEdit*>(at(row, TimesColumn)); }

    /// The row as it is shown. A shutter button whose colour and text disagree, or another row's number, is a
    /// fatal error.
    ProgramStep step(int row) const;
    QVector<ProgramStep> steps() const;
    /// Fills a row's last three columns; its set points and shutters stay.
    void enter(int row, const QString& timeSec, const QString& group = QString(),
        const QString& times = QStringLiteral("1"));
    /// Has the station load `steps` from a file; the rows beyond them become unused.
    void load(const QVector<ProgramStep>& steps);
    void loadFile(const QString& fname);
    void saveFile(const QString& fname);

    /// Clicks the row's step with the right mouse button and then `entry` of the menu that opens. False when
    /// none opens. The tab must be on the screen.
    bool pick(int row, RowEntry entry);
    /// Clicks `widget` with the right mouse button, closes the menu that opens, if any, and says its entries.
    static QStringList menuOf(QWidget& widget);
    /// The same, and says where on the screen the menu's corner was.
    static QPoint menuPlace(QWidget& widget);

    /// Clicks a button of the bar: "Run", "Pause", "Clear", "Check", "Load" or "Save".
    void click(const char* name);
    QToolButton& button(const char* name) const;
    /// The text of a label of the bar: "DispTime01" and its like.
    QString label(const char* name) const;

    bool isRunning() const;
    bool isWaiting() const;
    /// The numbers of the steps marked as running.
    QVector<int> marked() const;

    /// Advances the driven clock and has the player tick.
    void tick(qint64 afterMs = 10);
    /// Ticks every 10 ms until the program stops or waits; the steps in the order of their starts.
    QVector<int> play(int maximumTicks = 100000);

private:
    QMainWindow& main;
    NamedWidgets widgets;
    QVector<QVector<QWidget*>> cells; // by row and column
};
