#pragma once

#include "program/programstep.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QVector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

/// One step of the growth program as a row of widgets in the program table.
///
/// The widgets hold the step as text; the shutters' states are kept beside them. The row owns its widgets
/// until placeInGrid() hands them to the grid's parent; a row that is never placed is never seen. Channels
/// are numbered 0 to 8: the seven cells, then the main and the preparation chamber's substrate.
class aLine : public QObject
{
    Q_OBJECT

public:
    /// An unused step: set points and time "0", shutters closed, no group, played once. `widgetParent` is the
    /// widget whose grid the row is meant for: widgets that are built where they stay take their style sheets
    /// at a fraction of the cost.
    explicit aLine(QWidget* widgetParent = nullptr);
    ~aLine() override;

    /// Puts the widgets into row `row` of `grid`, which belongs to a widget (the one of the constructor, if
    /// there was one). Once.
    void placeInGrid(QGridLayout* grid, int row);

    /// Shows the step's number, counted from 1.
    void setStep(int n);
    /// Marks the row as the one being played.
    void setMark(bool on);

    int tempCount() const { return cellEdits.size() + substrateEdits.size(); }
    int shutterCount() const { return shutterButtons.size(); }

    /// Seconds; 0 for a text that is no (finite) number.
    double time() const;
    /// Shows `t` with at most six significant digits.
    void setTime(double t);
    QString group() const;
    void setGroup(const QString& name);
    /// 0 for a text that is no integer.
    int times() const;
    void setTimes(int n);
    QString tempText(int ch) const;
    void setTempText(int ch, const QString& text);
    /// deg C; 0 for a text that is no (finite) number.
    double temp(int ch) const;
    bool shutter(int n) const { return shutterStates[n]; }
    /// All shutters, in order; true = open.
    const QVector<bool>& shutters() const { return shutterStates; }
    void setShutter(int n, bool open);

    /// The step this row shows. Time and repeat count go through their numbers, so that what is no number
    /// becomes "0" where the step is shown again.
    ProgramStep contents() const;
    void setContents(const ProgramStep& step);

signals:
    void copy();
    void cut();
    void pasteUp();
    void pasteDown();
    void undo();

public slots:
    /// Turns the shutter of the button that sent the signal.
    void TurnSs();
    /// Runs the row's menu at `p` of the step label, until an entry is picked or the menu is left.
    void PopUpEMenu(QPoint p);

private:
    void buildMenu();
    void buildCell(QWidget* widgetParent);
    void showShutter(int n);
    QLineEdit* tempEdit(int ch) const;

    QString onText;
    QString offText;
    QMenu* menu;
    QLabel* stepLabel;
    QList<QWidget*> cells; // of each cell's edit and button
    QList<QLineEdit*> cellEdits;
    QList<QToolButton*> shutterButtons;
    QList<QLineEdit*> substrateEdits;
    QVector<bool> shutterStates;
    QLineEdit* timeEdit;
    QLineEdit* groupEdit;
    QLineEdit* timesEdit;
    bool owner; // of the widgets
};
