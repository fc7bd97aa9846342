#include "chart/support/referenceview.h"

#include <QPainter>

#include <cmath>

namespace {

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

ReferenceView::ReferenceView(QWidget* parent)
    : QFrame(parent)
    , colors{QColor(0, 0, 0), QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255), QColor(230, 230, 0),
          QColor(230, 0, 230), QColor(0, 230, 230), QColor(180, 230, 0), QColor(180, 0, 230),
          QColor(0, 180, 230), QColor(230, 180, 0), QColor(230, 0, 180), QColor(0, 230, 180)}
{
    setStyleSheet(QStringLiteral("background-color: rgb(255, 255, 255);"));
}

double ReferenceView::px(double x) const
{
    return left + (right - left) / (xMax - xMin) * (x - xMin);
}

double ReferenceView::py(double y) const
{
    return bottom - (bottom - top) / (yMax - yMin) * (y - yMin);
}

int ReferenceView::firstIndex(const QVector<QPointF>& points, double sec) const
{
    int lo = 0;
    int hi = points.size();
    while (std::abs(lo - hi) >= 2) {
        const int mid = (lo + hi) / 2;
        if (points.at(mid).x() > sec) {
            hi = mid;
        } else {
            lo = mid;
        }
    }
    return lo;
}

void ReferenceView::drawSeries(QPainter& painter) const
{
    for (int i = 0; i < series.size(); ++i) {
        if (!shown.value(i, true)) {
            continue;
        }
        painter.setPen(QPen(colors.at(i % colors.size()), i == selected ? 3 : 1));
        const QVector<QPointF>& points = series.at(i);
        int j = firstIndex(points, xMin);
        while (j < points.size() - 1) {
            if (isFinite(points.at(j)) && isFinite(points.at(j + 1))) {
                painter.drawLine(static_cast<int>(px(points.at(j).x())),
                    static_cast<int>(py(points.at(j).y())), static_cast<int>(px(points.at(j + 1).x())),
                    static_cast<int>(py(points.at(j + 1).y())));
            }
            ++j;
            if (points.at(j).x() > xMax) {
                break;
            }
        }
    }
}

void ReferenceView::fittedText(
    QPainter& painter, double x, double y, double w, double h, int flags, const QString& text, QFont& font)
{
    const double remembered = font.pointSizeF();
    const QRectF measured = painter.boundingRect(QRectF(x, y + h, 1000, 1000), flags, text);
    const double sx = w == 0 ? 1.0 : measured.width() / w;
    double scale = 1.0;
    if (h != 0) {
        const double sy = measured.height() / h;
        scale = sx > sy ? sx : sy;
    } else if (sx > 1 && w != 0) {
        scale = sx;
    }
    const int size = static_cast<int>(remembered / scale);
    if (size < 1) {
        return;
    }
    font.setPointSize(size);
    painter.setFont(font);
    painter.drawText(QRectF(x, y, w, h), flags, text);
    font.setPointSizeF(remembered);
    painter.setFont(font);
}

void ReferenceView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int w = width();
    const int h = height();
    const int L = static_cast<int>(0.1 * w);
    const int R = static_cast<int>(0.03 * w);
    const int T = static_cast<int>(0.05 * h);
    const int B = static_cast<int>(0.08 * h);
    const int gx = static_cast<int>(0.02 * w);
    const int gy = static_cast<int>(0.02 * h);

    xMax = now - xOffset;
    xMin = xMax - xSpan;
    yMin = -yOffset;
    yMax = yMin + ySpan;
    painter.setClipRect(QRect(QPoint(L - 1, T - 1), QPoint(w - R, h - B)));
    left = L;
    top = T;
    right = w - R;
    bottom = h - B;
    drawSeries(painter);

    painter.setPen(QPen(QColor(0, 0, 0), 1));
    painter.drawLine(L, T, w - R, T);
    painter.drawLine(w - R, T, w - R, h - B);
    painter.drawLine(L, h - B, w - R, h - B);
    painter.drawLine(L, T, L, h - B);

    const double stepY = std::pow(10.0, static_cast<int>(std::log10(yMax - yMin) - 0.5));
    const int k1 = static_cast<int>(yMin / stepY);
    const int k2 = static_cast<int>(yMax / stepY);
    for (int k = k1; k <= k2; ++k) {
        const int y = static_cast<int>(py(k * stepY));
        painter.drawLine(L, y, w - R, y);
    }

    const int unit = xSpan < 300 ? 0 : xSpan < 7200 ? 1 : xSpan < 259200 ? 2 : 3;
    const double divisor = QVector<double>{1, 60, 3600, 86400}.at(unit);
    const double base = QVector<double>{1, 60, 1800, 43200}.at(unit);
    const double stepX = base * std::pow(10.0, static_cast<int>(std::log10(xSpan / base) - 0.5));
    const int a1 = static_cast<int>((now - xMax) / stepX);
    const int a2 = static_cast<int>((now - xMin) / stepX);
    for (int k = a1; k <= a2; ++k) {
        const int x = static_cast<int>(px(now - k * stepX));
        painter.drawLine(x, T, x, h - B);
    }

    painter.setClipRect(QRect(QPoint(0, 0), QPoint(w - 1, h - 1)));
    if (!withLabels) {
        return;
    }
    QFont font;
    for (int k = k1; k <= k2; ++k) {
        const int y = static_cast<int>(py(k * stepY));
        fittedText(painter, 0, y - gy / 2, L - gx, 2 * (gy / 2), Qt::AlignRight | Qt::AlignVCenter,
            QStringLiteral("%1").arg(k * stepY), font);
    }
    for (int k = a1; k <= a2; ++k) {
        const int x = static_cast<int>(px(now - k * stepX));
        fittedText(painter, x - 5 * gx, (h - B) + 0.5 * gy, 10 * gx, gy, Qt::AlignCenter,
            QStringLiteral("%1").arg(k * stepX / divisor), font);
    }
    fittedText(painter, w - R - 5 * gx, (h - B) + 1.6 * gy, R + 4 * gx, gy, Qt::AlignRight | Qt::AlignVCenter,
        QStringLiteral("[%1]").arg(unitNames.at(unit)), font);
}
