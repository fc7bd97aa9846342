#pragma once

#include "ui_lineselect.h"

#include <QFrame>

/// One channel's row above the chart: a check box that shows or hides the line, with the channel's name, and
/// a swatch in the line's colour. Hovering over it selects the channel.
class LineSelect : public QFrame, private Ui::LineSelect
{
    Q_OBJECT

public:
    explicit LineSelect(QWidget* parent = nullptr);

    void setName(const QString& name);
    void setShown(bool shown);
    /// The swatch's colour; the line itself has the chart's own colour for its channel.
    void setColor(const QColor& color);

signals:
    /// The check box changed.
    void toggled(bool f);
    /// The mouse moved over the selector, with a button held or without.
    void fIn();

protected:
    void mouseMoveEvent(QMouseEvent* ev) override;
};
