#pragma once

#include <QPixmap>
#include <QString>
#include <QVector>

class QWidget;

/// A number beside a picture, and a line from it to a widget of the window, which goes by its name.
struct Callout
{
    enum class Side { Left, Right, Top, Bottom };

    QString widget;
    Side side = Side::Left;
};

/// A picture of `part` of `window`, with the callouts, numbered from 1, around it. A widget that is not there
/// or not shown is a fatal error: the picture would point at nothing.
QPixmap pictureOf(QWidget& window, QWidget& part, const QVector<Callout>& callouts);
