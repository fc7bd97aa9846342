#include "program/aline.h"

#include "base/number.h"
#include "base/numberentry.h"
#include "base/panelstyle.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

namespace {

void setTextOf(QLineEdit& edit, const QString& text)
{
    if (edit.text() != text) {
        edit.setText(text);
    }
}

QLineEdit* newEdit(const QString& text, QWidget* parent)
{
    auto* edit = new QLineEdit(text, parent);
    edit->setAlignment(Qt::AlignRight);
    edit->setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
    return edit;
}

QLineEdit* newNumberEdit(const QString& text, QWidget* parent)
{
    QLineEdit* edit = newEdit(text, parent);
    makeNumberEntry(*edit);
    return edit;
}

constexpr int shutterButtonHeight = 20; // pixels

// From some 120 dpi on the usual font's letters are higher than a button of a fixed height.
void fitIntoHeight(QWidget& widget, int height)
{
    QFont font = widget.font();
    constexpr double pointsPerInch = 72.0;
    if (font.pointSizeF() * widget.logicalDpiY() / pointsPerInch > height) {
        font.setPixelSize(height);
        widget.setFont(font);
    }
}

} // namespace

aLine::aLine(QWidget* widgetParent)
    : onText(tr("On"))
    , offText(tr("Off"))
    , menu(new QMenu)
    , stepLabel(new QLabel(widgetParent))
    , shutterStates(Channels::shutterCount, false)
    , owner(widgetParent == nullptr)
{
    buildMenu();

    stepLabel->setFrameShape(QFrame::StyledPanel);
    stepLabel->setAlignment(Qt::AlignCenter);
    stepLabel->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(stepLabel, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(PopUpEMenu(QPoint)),
        Qt::UniqueConnection);

    for (int n = 0; n < Channels::shutterCount; ++n) {
        buildCell(widgetParent);
        showShutter(n);
    }
    for (int n = 0; n < Channels::substrateCount; ++n) {
        substrateEdits.append(newNumberEdit(QStringLiteral("0"), widgetParent));
    }
    timeEdit = newNumberEdit(QStringLiteral("0"), widgetParent);
    groupEdit = newEdit(QString(), widgetParent);
    timesEdit = newNumberEdit(QStringLiteral("1"), widgetParent);
}

aLine::~aLine()
{
    delete menu;
    if (!owner) {
        return;
    }
    delete stepLabel;
    qDeleteAll(cells);
    qDeleteAll(substrateEdits);
    delete timeEdit;
    delete groupEdit;
    delete timesEdit;
}

void aLine::buildMenu()
{
    const auto addEntry = [this](const QString& text, const char* signal) {
        connect(menu->addAction(text), SIGNAL(triggered()), this, signal, Qt::UniqueConnection);
    };
    addEntry(tr("Copy"), SIGNAL(copy()));
    addEntry(tr("Cut"), SIGNAL(cut()));
    addEntry(tr("Paste(up)"), SIGNAL(pasteUp()));
    addEntry(tr("Paste(down)"), SIGNAL(pasteDown()));
    addEntry(tr("Undo"), SIGNAL(undo()));
}

void aLine::buildCell(QWidget* widgetParent)
{
    auto* cell = new QWidget(widgetParent);
    QLineEdit* edit = newNumberEdit(QStringLiteral("0"), cell);
    edit->setMinimumWidth(50);
    auto* button = new QToolButton(cell);
    button->setMaximumHeight(shutterButtonHeight);
    fitIntoHeight(*button, shutterButtonHeight);
    connect(button, SIGNAL(clicked()), this, SLOT(TurnSs()), Qt::UniqueConnection);

    auto* box = new QHBoxLayout(cell);
    box->setSpacing(1);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(edit);
    box->addWidget(button);

    cells.append(cell);
    cellEdits.append(edit);
    shutterButtons.append(button);
}

void aLine::placeInGrid(QGridLayout* grid, int row)
{
    static_assert(ProgramColumns == TimesColumn + 1, "a new column of the table needs its widget here");
    owner = false;
    grid->addWidget(stepLabel, row, StepColumn);
    for (int n = 0; n < cells.size(); ++n) {
        grid->addWidget(cells[n], row, FirstCellColumn + n);
    }
    for (int n = 0; n < substrateEdits.size(); ++n) {
        grid->addWidget(substrateEdits[n], row, FirstSubstrateColumn + n);
    }
    grid->addWidget(timeEdit, row, TimeColumn);
    grid->addWidget(groupEdit, row, GroupColumn);
    grid->addWidget(timesEdit, row, TimesColumn);
}

void aLine::setStep(int n)
{
    stepLabel->setText(QString::number(n));
}

void aLine::setMark(bool on)
{
    setStyleOf(*stepLabel, on ? stateStyle(true) : QString());
}

double aLine::time() const
{
    return readNumber(timeEdit->text()).value_or(0.0);
}

void aLine::setTime(double t)
{
    setTextOf(*timeEdit, QString::number(t, 'g', 6));
}

QString aLine::group() const
{
    return groupEdit->text();
}

void aLine::setGroup(const QString& name)
{
    setTextOf(*groupEdit, name);
}

int aLine::times() const
{
    return timesEdit->text().toInt();
}

void aLine::setTimes(int n)
{
    setTextOf(*timesEdit, QString::number(n));
}

QLineEdit* aLine::tempEdit(int ch) const
{
    return ch < cellEdits.size() ? cellEdits[ch] : substrateEdits[ch - cellEdits.size()];
}

QString aLine::tempText(int ch) const
{
    return tempEdit(ch)->text();
}

void aLine::setTempText(int ch, const QString& text)
{
    setTextOf(*tempEdit(ch), text);
}

double aLine::temp(int ch) const
{
    return readNumber(tempText(ch)).value_or(0.0);
}

void aLine::setShutter(int n, bool open)
{
    shutterStates[n] = open;
    showShutter(n);
}

void aLine::showShutter(int n)
{
    showState(*shutterButtons[n], shutterStates[n], shutterStates[n] ? onText : offText);
}

ProgramStep aLine::contents() const
{
    ProgramStep step;
    for (int ch = 0; ch < tempCount(); ++ch) {
        step.setPoints[static_cast<size_t>(ch)] = tempText(ch);
    }
    for (int n = 0; n < shutterCount(); ++n) {
        step.shutters[static_cast<size_t>(n)] = shutter(n);
    }
    step.timeSec = time();
    step.group = group();
    step.times = times();
    return step;
}

void aLine::setContents(const ProgramStep& step)
{
    for (int ch = 0; ch < tempCount(); ++ch) {
        setTempText(ch, step.setPoints[static_cast<size_t>(ch)]);
    }
    for (int n = 0; n < shutterCount(); ++n) {
        setShutter(n, step.shutters[static_cast<size_t>(n)]);
    }
    setTime(step.timeSec);
    setGroup(step.group);
    setTimes(step.times);
}

void aLine::TurnSs()
{
    const int n = shutterButtons.indexOf(qobject_cast<QToolButton*>(sender()));
    if (n < 0) {
        return;
    }
    setShutter(n, !shutterStates[n]);
}

void aLine::PopUpEMenu(QPoint p)
{
    menu->exec(stepLabel->mapToGlobal(p));
}
