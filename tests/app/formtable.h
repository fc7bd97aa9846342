#pragma once

#include <QFrame>
#include <QList>
#include <QString>

class QLayout;
class QMainWindow;
class QObject;
class QWidget;

/// What the main window's form holds: the test's own account of it, one entry a widget.
struct FormWidget
{
    QString name;
    const char* kind = ""; ///< the exact class
    const char* layout = ""; ///< the layout it lies in; empty: in none
    int row = 0; ///< in a box layout: 0
    int column = 0; ///< in a box layout: the place from the left
    int rowSpan = 1;
    int columnSpan = 1;
    int shape = QFrame::NoFrame; ///< of frames and labels
    int shadow = QFrame::Plain;
    int lineWidth = 1;
    const char* style = "";
    QString text;
};

/// A layout of the form and the widget or layout that holds it. -1: the style decides.
struct FormLayout
{
    const char* name = "";
    const char* kind = "";
    const char* holder = "";
    int spacing = -1;
    int margin = -1;
    int items = 0; ///< widgets, layouts and spacers in it
};

QList<FormWidget> formWidgets();
QList<FormLayout> formLayouts();

/// Whether `object` belongs to the form `window` was built from, and not to the inside of the chart.
bool isOfTheForm(const QMainWindow& window, const QObject& object);

/// The widgets and the layout of that name on the form. The chart has names of its own, some of them the
/// same.
QList<QWidget*> widgetsNamed(const QMainWindow& window, const QString& name);
QLayout* layoutNamed(const QMainWindow& window, const char* name);

/// Kind, place and frame of a widget in words, as the table awaits them.
QString awaitedShape(const FormWidget& awaited);

/// The same of the widget of that name in `window`; says so when there is none, or more than one.
QString builtShape(const QMainWindow& window, const FormWidget& awaited);
