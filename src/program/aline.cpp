#include "program/aline.h"

#include "app/panelstyle.h"
#include "temperature/ramp.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

namespace {

constexpr int cellCount = ProgramStep::shutterCount;
constexpr int substrateCount = ProgramStep::channelCount - cellCount;

void setTextOf(QLineEdit& edit, const QString& text)
{
    if (edit.text() != text) {
        edit.setText(text);
    }
}

} // namespace

aLine::aLine()
    : onText(tr("On"))
    , offText(tr("Off"))
    , menu(new QMenu)
    , stepLabel(new QLabel)
    , shutterStates(cellCount, false)
    , timeEdit(newEdit(QStringLiteral("0")))
    , groupEdit(newEdit(QString()))
    , timesEdit(newEdit(QStringLiteral("1")))
{
    const auto addEntry = [this](const QString& text, const char* signal) {
        connect(menu->addAction(text), SIGNAL(triggered()), this, signal, Qt::UniqueConnection);
    };
    addEntry(tr("Copy"), SIGNAL(copy()));
    addEntry(tr("Cut"), SIGNAL(cut()));
    addEntry(tr("Paste(up)"), SIGNAL(pasteUp()));
    addEntry(tr("Paste(down)"), SIGNAL(pasteDown()));
    addEntry(tr("Undo"), SIGNAL(undo()));

    stepLabel->setFrameShape(QFrame::StyledPanel);
    stepLabel->setAlignment(Qt::AlignCenter);
    stepLabel->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(stepLabel, SIGNAL(customContextMenuRequested(QPoint)), this, SLOT(PopUpEMenu(QPoint)),
        Qt::UniqueConnection);

    for (int n = 0; n < cellCount; ++n) {
        QLineEdit* edit = newEdit(QStringLiteral("0"));
        edit->setMinimumWidth(50);
        cellEdits.append(edit);

        auto* button = new QToolButton;
        button->setMaximumHeight(20);
        shutterButtons.append(button);
        showShutter(n);
        connect(button, SIGNAL(clicked()), this, SLOT(TurnSs()), Qt::UniqueConnection);
    }
    for (int n = 0; n < substrateCount; ++n) {
        substrateEdits.append(newEdit(QStringLiteral("0")));
    }
}

aLine::~aLine()
{
    delete menu;
    if (placed) {
        return;
    }
    delete stepLabel;
    qDeleteAll(cellEdits);
    qDeleteAll(shutterButtons);
    qDeleteAll(substrateEdits);
    delete timeEdit;
    delete groupEdit;
    delete timesEdit;
}

QLineEdit* aLine::newEdit(const QString& text) const
{
    auto* edit = new QLineEdit(text);
    edit->setAlignment(Qt::AlignRight);
    edit->setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
    return edit;
}

void aLine::placeInGrid(QGridLayout* grid, int row)
{
    placed = true;
    int column = 0;
    grid->addWidget(stepLabel, row, column++);
    for (int n = 0; n < cellEdits.size(); ++n) {
        auto* cell = new QWidget(grid->parentWidget());
        auto* box = new QHBoxLayout(cell);
        box->setSpacing(1);
        box->setContentsMargins(0, 0, 0, 0);
        box->addWidget(cellEdits[n]);
        box->addWidget(shutterButtons[n]);
        grid->addWidget(cell, row, column++);
    }
    for (QLineEdit* edit : qAsConst(substrateEdits)) {
        grid->addWidget(edit, row, column++);
    }
    grid->addWidget(timeEdit, row, column++);
    grid->addWidget(groupEdit, row, column++);
    grid->addWidget(timesEdit, row, column++);
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
    return Ramp::number(timeEdit->text());
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
    return Ramp::number(tempText(ch));
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
