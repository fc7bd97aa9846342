#include "app/formtable.h"

#include "support/panel.h"

#include <QStringList>

#include <initializer_list>

namespace {

constexpr int panel = QFrame::StyledPanel;
constexpr int noFrame = QFrame::NoFrame;
constexpr int plain = QFrame::Plain;
constexpr int raised = QFrame::Raised;
constexpr int sunken = QFrame::Sunken;

const char* const panelColour = "background-color: rgb(240, 240, 220);";
const char* const headingColour = "background-color: rgb(240, 250, 255);";
const char* const sourceColour = "background-color: rgb(240, 255, 240);";
const char* const substrateColour = "background-color: rgb(255, 240, 240);";
const char* const valueColour = "background-color: rgb(255, 250, 230);";
const char* const entryColour = "background-color: rgb(255, 255, 255);";

const char* const cells = "gridLayout_2";
const char* const shutters = "gridLayout";
const char* const bar = "horizontalLayout_2";

// A row of like widgets, "SName01" and on: `first` to `last` lie side by side from `column`.
struct Series
{
    const char* prefix;
    int first;
    int last;
    FormWidget like;
    QStringList texts;
};

QList<FormWidget> spread(const Series& series)
{
    QList<FormWidget> widgets;
    for (int number = series.first; number <= series.last; ++number) {
        FormWidget widget = series.like;
        const int place = number - series.first;
        widget.name = cell(series.prefix, number - 1);
        widget.column += place;
        widget.text = series.texts.value(place, series.texts.first());
        widgets.append(widget);
    }
    return widgets;
}

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

FormWidget heading(const char* name, const char* layout, int row, int columnSpan, const char* words)
{
    return {
        text(name), "QLabel", layout, row, 0, 1, columnSpan, panel, sunken, 1, headingColour, text(words)};
}

FormWidget label(const char* layout, int row, int column, int shadow, const char* style)
{
    return {{}, "QLabel", layout, row, column, 1, 1, panel, shadow, 1, style, {}};
}

FormWidget bare(
    const char* name, const char* kind, const char* layout, int row, int column, const char* words)
{
    return {text(name), kind, layout, row, column, 1, 1, noFrame, plain, 1, "", text(words)};
}

FormWidget input(const char* kind, const char* layout, int row, int column, const char* style)
{
    return {{}, kind, layout, row, column, 1, 1, noFrame, plain, 1, style, {}};
}

QList<FormWidget> windowWidgets()
{
    return {
        bare("centralwidget", "QWidget", "", 0, 0, ""),
        bare("menubar", "QMenuBar", "", 0, 0, ""),
        bare("statusbar", "QStatusBar", "", 0, 0, ""),
        {text("frame_2"), "QFrame", "gridLayout_4", 0, 0, 2, 1, panel, raised, 1, panelColour, {}},
        {text("frame"), "QFrame", "gridLayout_4", 0, 1, 1, 1, panel, raised, 1, panelColour, {}},
        {text("tabWidget"), "QTabWidget", "gridLayout_4", 2, 0, 1, 2, noFrame, plain, 1,
            "background-color: rgb(250, 240, 220);", {}},
        bare("tab_9", "QWidget", "", 0, 0, ""),
        bare("tab_10", "QWidget", "", 0, 0, ""),
    };
}

QList<FormWidget> cellPanel()
{
    FormWidget temperature = bare("label_19", "QLabel", cells, 0, 0, "Temperature");
    temperature.columnSpan = 10;
    QList<FormWidget> widgets{
        temperature,
        bare("TMPCtrlActive", "QRadioButton", cells, 0, 10, "Controll"),
        heading("label_20", cells, 1, 2, "Cell"),
        heading("label_21", cells, 3, 2, "Current [deg C]"),
        heading("label_22", cells, 4, 2, "Target [deg C]"),
        heading("label_23", cells, 5, 2, "Dulation [min]"),
        heading("label_25", cells, 7, 2, "Setting Temp. [deg C]"),
        heading("label_6", cells, 8, 2, "Elapsed Time [min]"),
    };
    const QStringList sources{
        text("Be"), text("Ga"), text("Si"), text("As"), text("Al"), text("In"), text("As")};
    const QStringList substrates{text("Main Ch"), text("Pre Ch")};
    const QStringList zero{text("0.0")};
    const QStringList run{text("Run")};
    const Series table[] = {
        {"CName", 1, 7, label(cells, 1, 2, sunken, sourceColour), sources},
        {"CName", 8, 9, label(cells, 1, 9, sunken, substrateColour), substrates},
        {"TCActive", 1, 9, input("QToolButton", cells, 2, 2, ""), {text("Active")}},
        {"CDeg", 1, 7, label(cells, 3, 2, plain, valueColour), zero},
        {"CDeg", 8, 9, label(cells, 3, 9, sunken, valueColour), zero},
        {"TDeg", 1, 9, input("QLineEdit", cells, 4, 2, entryColour), zero},
        {"DTime", 1, 9, input("QLineEdit", cells, 5, 2, entryColour), {text("10.0")}},
        {"RunT", 1, 1, input("QToolButton", cells, 6, 2, "background-color: rgb(205, 205,135);"), run},
        {"RunT", 2, 2, input("QToolButton", cells, 6, 3, "background-color: rgb(245, 255, 135);"), run},
        {"RunT", 3, 9, input("QToolButton", cells, 6, 4, ""), run},
        {"SDeg", 1, 7, label(cells, 7, 2, plain, valueColour), zero},
        {"SDeg", 8, 9, label(cells, 7, 9, sunken, valueColour), zero},
        {"ETime", 1, 9, label(cells, 8, 2, sunken, valueColour), zero},
    };
    for (const Series& series : table) {
        widgets += spread(series);
    }
    return widgets;
}

QList<FormWidget> shutterPanel()
{
    FormWidget shutter = bare("label", "QLabel", shutters, 0, 0, "Shutter");
    shutter.columnSpan = 8;
    FormWidget change = bare("ChangeShutterB", "QPushButton", shutters, 4, 1, "Change");
    change.columnSpan = 7;
    FormWidget allClose = bare("AllCloseB", "QPushButton", shutters, 5, 1, "All Close");
    allClose.columnSpan = 7;
    FormWidget firstName = label(shutters, 1, 1, sunken, sourceColour);
    firstName.lineWidth = 2;
    QList<FormWidget> widgets{
        shutter,
        heading("label_2", shutters, 1, 1, "Cell"),
        heading("label_3", shutters, 2, 1, "Now"),
        heading("label_4", shutters, 3, 1, "New"),
        change,
        allClose,
    };
    const QStringList off{text("Off")};
    const Series table[] = {
        {"SName", 1, 1, firstName, {text("Be")}},
        {"SName", 2, 7, label(shutters, 1, 2, sunken, sourceColour),
            {text("Ga"), text("Si"), text("As"), text("Al"), text("In"), text("As")}},
        {"CS", 1, 7, input("QToolButton", shutters, 2, 1, ""), off},
        {"NS", 1, 7, input("QToolButton", shutters, 3, 1, ""), off},
    };
    for (const Series& series : table) {
        widgets += spread(series);
    }
    return widgets;
}

FormWidget display(const char* name, int place)
{
    return {text(name), "QFrame", bar, 0, place, 1, 1, panel, raised, 1, valueColour, {}};
}

QList<FormWidget> tabs()
{
    return {
        {text("scrollArea"), "QScrollArea", "gridLayout_9", 0, 0, 1, 1, panel, sunken, 1, "", {}},
        bare("SA01", "QWidget", "", 0, 0, ""),
        {text("Tshow"), "TShow", "gridLayout_3", 0, 0, 1, 1, panel, raised, 1, "", {}},
        bare("ProgRun", "QToolButton", bar, 0, 0, "Run"),
        bare("ProgPause", "QToolButton", bar, 0, 1, "Pause"),
        display("frame_4", 3),
        bare("label_666", "QLabel", "gridLayout_5", 0, 0, "Time : "),
        bare("DispTime01", "QLabel", "gridLayout_5", 0, 1, "0"),
        bare("label_63", "QLabel", "gridLayout_5", 0, 2, "/"),
        bare("DispTime02", "QLabel", "gridLayout_5", 0, 3, "0"),
        display("frame_5", 4),
        bare("label_66", "QLabel", "gridLayout_6", 0, 0, "Total Time : "),
        bare("DispTTime01", "QLabel", "gridLayout_6", 0, 1, "0"),
        bare("label_67", "QLabel", "gridLayout_6", 0, 2, "/"),
        bare("DispTTime02", "QLabel", "gridLayout_6", 0, 3, "0"),
        display("frame_6", 5),
        bare("label_70", "QLabel", "gridLayout_7", 0, 0, "Rep. Times : "),
        bare("DispCount01", "QLabel", "gridLayout_7", 0, 1, "0"),
        bare("label_71", "QLabel", "gridLayout_7", 0, 2, "/"),
        bare("DispCount02", "QLabel", "gridLayout_7", 0, 3, "0"),
        bare("ProgClear", "QToolButton", bar, 0, 6, "Clear"),
        bare("ProgCheck", "QToolButton", bar, 0, 7, "Check"),
        bare("ProgLoad", "QToolButton", bar, 0, 8, "Load"),
        bare("ProgSave", "QToolButton", bar, 0, 9, "Save"),
    };
}

} // namespace

QList<FormWidget> formWidgets()
{
    return windowWidgets() + cellPanel() + shutterPanel() + tabs();
}

QList<FormLayout> formLayouts()
{
    return {
        {"gridLayout_4", "QGridLayout", "centralwidget", 6, 6, 4},
        {"gridLayout_2", "QGridLayout", "frame_2", 2, -1, 8 + 8 * 9},
        {"gridLayout", "QGridLayout", "frame", 2, -1, 6 + 3 * 7},
        {"gridLayout_9", "QGridLayout", "tab_9", 3, -1, 2},
        {"gridLayout_8", "QGridLayout", "SA01", 1, -1, 1},
        {"Program", "QGridLayout", "gridLayout_8", 1, -1, 0},
        {"horizontalLayout_2", "QHBoxLayout", "gridLayout_9", -1, -1, 10},
        {"gridLayout_5", "QGridLayout", "frame_4", -1, -1, 4},
        {"gridLayout_6", "QGridLayout", "frame_5", -1, -1, 4},
        {"gridLayout_7", "QGridLayout", "frame_6", -1, -1, 4},
        {"gridLayout_3", "QGridLayout", "tab_10", -1, -1, 1},
    };
}
