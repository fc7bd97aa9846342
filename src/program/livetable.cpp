#include "program/livetable.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

namespace {

constexpr int figureCharacters = 10;

} // namespace

LatePolish::LatePolish()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::PolishRequest);
}

LatePolish::~LatePolish()
{
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

// Not setUpdatesEnabled(): allowing updates again, it asks for one of every child, and the time goes into
// looking through the 2,600 siblings of each of the table's widgets, of which a few hundred are in sight.
HeldUpdates::HeldUpdates(QWidget& container)
    : whole(container)
{
    const QList<QWidget*> children = container.findChildren<QWidget*>();
    held.reserve(children.size());
    for (QWidget* child : children) {
        if (child->updatesEnabled()) {
            child->setAttribute(Qt::WA_UpdatesDisabled);
            held.append(child);
        }
    }
}

HeldUpdates::~HeldUpdates()
{
    for (QWidget* child : qAsConst(held)) {
        child->setAttribute(Qt::WA_UpdatesDisabled, false);
    }
    // Laid out first: otherwise it would be painted twice, before and after.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    whole.update();
}

void giveRoomForFigures(QLabel& label)
{
    const QString shown = label.text();
    label.setText(QString(figureCharacters, QLatin1Char('0')));
    label.setFixedSize(label.sizeHint());
    label.setText(shown);
}

void showFigure(QLabel& label, const QString& text)
{
    if (label.text() == text) {
        return;
    }
    label.setText(text);
    label.setToolTip(text.size() > figureCharacters ? text : QString());
}
