#pragma once

#include "ui_tshow.h"

#include <QFrame>
#include <QList>

class LineSelect;

/// The time chart: a row of line selectors above the drawing area. Channels are numbered in the order in
/// which they are added.
class TShow : public QFrame, private Ui::TShow
{
    Q_OBJECT

public:
    explicit TShow(QWidget* parent = nullptr);

    /// Adds a channel and returns its selector, which the chart owns. A negative `red` takes the swatch's
    /// colour from the chart's table. Any other colour (0 to 255 each) reaches the swatch alone: the line is
    /// always drawn in the table's colour.
    LineSelect* addLine(QString name, bool shown, int red, int green, int blue);

public slots:
    /// Time zero of the points' seconds, in ms since the epoch.
    void setStartTime(qint64 st);
    /// Appends a point (elapsed seconds, deg C) to channel `ch`; ignored when there is no such channel. Does
    /// not repaint: update() does, once all channels have theirs.
    void newT(int ch, double sec, double T);
    /// The sender's line is shown or hidden.
    void changeSelT(bool f);
    /// The sender's channel becomes the selected one, at the next repaint.
    void fInLineSelect();

private:
    QList<LineSelect*> selectors;
    qint64 startTime = 0; // ms since the epoch
};
