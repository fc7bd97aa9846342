#pragma once

#include "chart/support/referenceview.h"
#include "chart/tshowview.h"
#include "support/ticks.h"

#include <QImage>

/// The chart and the reference painter side by side, fed with the same points and showing the same view.
class PicturePair
{
public:
    /// The clock stands `nowSec` seconds after the start time.
    explicit PicturePair(double nowSec);

    void resize(const QSize& size);
    void add(int channel, const QVector<QPointF>& points);
    /// Puts the reference into the view that the chart has now.
    void follow();
    /// Both pictures.
    QImage chartPicture() { return chart.grab().toImage(); }
    QImage referencePicture();
    /// True when the pictures are the same in every pixel; otherwise says where they differ first, and keeps
    /// both as files when NELVO_KEEP_PICTURES names a folder.
    bool isSame();

    TShowView chart;
    ReferenceView reference;

private:
    DrivenClock clock;
};
