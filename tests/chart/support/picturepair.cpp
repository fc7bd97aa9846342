#include "chart/support/picturepair.h"

#include <QDebug>

namespace {

constexpr qint64 startMs = 1700000000000;

// Where two pictures of one size differ.
QString difference(const QImage& a, const QImage& b)
{
    int count = 0;
    QPoint first;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y) && count++ == 0) {
                first = QPoint(x, y);
            }
        }
    }
    return QStringLiteral("%1 pixels differ, the first at %2, %3: %4 instead of %5")
        .arg(count)
        .arg(first.x())
        .arg(first.y())
        .arg(a.pixel(first), 0, 16)
        .arg(b.pixel(first), 0, 16);
}

} // namespace

PicturePair::PicturePair(double nowSec)
    : clock(startMs + static_cast<qint64>(nowSec * 1000.0))
{
    chart.setStartTime(startMs);
    chart.setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
    reference.now = static_cast<double>(DrivenClock::nowMs() - startMs) / 1000.0;
}

void PicturePair::resize(const QSize& size)
{
    chart.resize(size);
    reference.resize(size);
}

void PicturePair::add(int channel, const QVector<QPointF>& points)
{
    for (const QPointF& point : points) {
        chart.addPoint(channel, point.x(), point.y());
    }
    while (reference.series.size() <= channel) {
        reference.series.append(QVector<QPointF>());
    }
    reference.series[channel] += points;
}

void PicturePair::follow()
{
    const ChartView& view = chart.chartView();
    reference.xSpan = view.xSpan;
    reference.xOffset = view.xOffset + view.xDragShift;
    reference.ySpan = view.ySpan;
    reference.yOffset = view.yOffset + view.yDragShift;
    reference.selected = chart.selectedChannel();
}

QImage PicturePair::referencePicture()
{
    follow();
    return reference.grab().toImage();
}

bool PicturePair::isSame()
{
    const QImage ours = chartPicture();
    const QImage plain = referencePicture();
    if (ours == plain) {
        return true;
    }
    qInfo().noquote() << (ours.size() == plain.size() ? difference(ours, plain)
                                                      : QStringLiteral("sizes differ"))
                      << "at" << chart.size() << "x span" << reference.xSpan << "offset" << reference.xOffset
                      << "y span" << reference.ySpan << "offset" << reference.yOffset;
    const QString folder = qEnvironmentVariable("NELVO_KEEP_PICTURES");
    if (!folder.isEmpty()) {
        ours.save(folder + QStringLiteral("/ours.png"));
        plain.save(folder + QStringLiteral("/plain.png"));
    }
    return false;
}
