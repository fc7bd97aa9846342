#include "chart/lineselect.h"

#include <QMouseEvent>

LineSelect::LineSelect(QWidget* parent)
    : QFrame(parent)
{
    setupUi(this);
    // The form says it too: it is what makes a mere move over the selector choose its line.
    setAttribute(Qt::WA_MouseTracking);
    connect(LineSel, SIGNAL(toggled(bool)), this, SIGNAL(toggled(bool)), Qt::UniqueConnection);
}

void LineSelect::setName(const QString& name)
{
    LineSel->setText(name);
}

void LineSelect::setShown(bool shown)
{
    LineSel->setChecked(shown);
}

void LineSelect::setColor(const QColor& color)
{
    LineColor->setStyleSheet(QStringLiteral("background-color: rgb(%1, %2, %3);")
                                 .arg(color.red())
                                 .arg(color.green())
                                 .arg(color.blue()));
}

void LineSelect::mouseMoveEvent(QMouseEvent*)
{
    emit fIn();
}
