#include "callouts.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int margin = 34;
constexpr int radius = 11;
const QColor ink(200, 40, 40);

QRect marginsOf(const QVector<Callout>& callouts)
{
    QRect margins(QPoint(0, 0), QPoint(0, 0));
    for (const Callout& callout : callouts) {
        switch (callout.side) {
        case Callout::Side::Left:
            margins.setLeft(margin);
            break;
        case Callout::Side::Right:
            margins.setRight(margin);
            break;
        case Callout::Side::Top:
            margins.setTop(margin);
            break;
        case Callout::Side::Bottom:
            margins.setBottom(margin);
            break;
        }
    }
    return margins;
}

QRect placeIn(const QWidget& part, QWidget& window, const QString& name)
{
    const auto* widget = window.findChild<QWidget*>(name);
    if (widget == nullptr || !widget->isVisible()) {
        qFatal("the window shows no %s", qPrintable(name));
    }
    const QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
    const QPoint origin = part.mapTo(&window, QPoint(0, 0));
    return place.translated(-origin).intersected(part.rect());
}

// Where the line ends on the widget, and the number's middle in the margin.
QPair<QPoint, QPoint> lineTo(const QRect& place, const QRect& picture, Callout::Side side)
{
    const QPoint middle = place.center();
    constexpr int inside = 3;
    switch (side) {
    case Callout::Side::Left:
        return {{place.left() + inside, middle.y()}, {picture.left() - margin / 2, middle.y()}};
    case Callout::Side::Right:
        return {{place.right() - inside, middle.y()}, {picture.right() + margin / 2, middle.y()}};
    case Callout::Side::Top:
        return {{middle.x(), place.top() + inside}, {middle.x(), picture.top() - margin / 2}};
    case Callout::Side::Bottom:
        return {{middle.x(), place.bottom()}, {middle.x(), picture.bottom() + margin / 2}};
    }
    return {};
}

void paintCallout(QPainter& painter, const QPair<QPoint, QPoint>& line, int number)
{
    painter.setPen(QPen(ink, 2));
    painter.drawLine(line.first, line.second);
    painter.setBrush(ink);
    painter.drawEllipse(line.first, 2, 2);
    painter.drawEllipse(line.second, radius, radius);
    painter.setPen(Qt::white);
    const QRect box(line.second - QPoint(radius, radius), QSize(2 * radius + 1, 2 * radius + 1));
    painter.drawText(box, Qt::AlignCenter, QString::number(number));
}

} // namespace

QPixmap pictureOf(QWidget& window, QWidget& part, const QVector<Callout>& callouts)
{
    const QPixmap grabbed = part.grab();
    const QRect margins = marginsOf(callouts);
    const QRect picture(QPoint(margins.left(), margins.top()), grabbed.size());
    QPixmap whole(picture.right() + 1 + margins.right(), picture.bottom() + 1 + margins.bottom());
    whole.fill(Qt::white);
    QPainter painter(&whole);
    painter.drawPixmap(picture.topLeft(), grabbed);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < callouts.size(); ++i) {
        const QRect place = placeIn(part, window, callouts[i].widget).translated(picture.topLeft());
        paintCallout(painter, lineTo(place, picture, callouts[i].side), i + 1);
    }
    return whole;
}
