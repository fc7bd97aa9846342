#include "program/livetable.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

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

void showFigure(QLabel& label, const QString& text)
{
    if (label.text() == text) {
        return;
    }
    label.setText(text);
    const QSize needed = label.sizeHint();
    if (label.maximumWidth() < needed.width() || label.minimumWidth() != label.maximumWidth()) {
        label.setFixedSize(needed);
    }
}
