#include "growthcheck/page/picturemarkup.h"

#include "growthcheck/check/timetext.h"
#include "growthcheck/check/words.h"
#include "growthcheck/page/markup.h"

#include <algorithm>
#include <cmath>

namespace GrowthCheck {

namespace {

using namespace Markup;

// Time is drawn in seconds, whose number of digits SVG's reals bear for programs of years.
QByteArray sec(qint64 ms)
{
    return number(static_cast<double>(ms) / 1000.0);
}

QByteArray bars(const QVector<Picture::Span>& spans, double top, double height)
{
    QByteArray path;
    for (const Picture::Span& span : spans) {
        path += 'M' + sec(span.first) + ' ' + number(top) + 'H' + sec(span.second) + 'v' + number(height)
            + 'H' + sec(span.first) + 'z';
    }
    return path;
}

// A lane a shutter; those of a run below those of the plan.
QByteArray lanes(const Picture& picture)
{
    constexpr double gap = 0.15;
    const double height = picture.isCompared ? (1.0 - 2.0 * gap) / 2.0 : 1.0 - 2.0 * gap;
    QByteArray content;
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        const QByteArray colour = "class=\"c" + QByteArray::number(shutter);
        content += element("path", {},
            colour + " fill\" d=\"" + bars(picture.planned[shutter], shutter + gap, height) + '"');
        if (picture.isCompared) {
            content += element("path", {},
                colour + " fill sent\" d=\"" + bars(picture.sent[shutter], shutter + gap + height, height)
                    + '"');
        }
    }
    for (const Picture::Span& span : picture.folded) {
        content
            += element("path", {}, "class=\"folded\" d=\"" + bars({span}, 0.0, Channels::shutterCount) + '"');
    }
    return content;
}

struct Scale
{
    double least = 0.0;
    double most = 100.0;
    double step = 20.0;

    // Where lines go across.
    QVector<double> lines() const
    {
        QVector<double> all;
        const int steps = qRound((most - least) / step);
        for (int line = 0; line <= steps; ++line) {
            all.append(least + line * step);
        }
        return all;
    }

    // A little room above and below, so that no curve lies on the frame.
    double room() const { return 0.04 * (most - least); }
    double height() const { return most - least + 2.0 * room(); }
    // How far down a temperature is drawn.
    double depth(double degC) const { return most + room() - degC; }
};

// Whole, round degrees around all that is drawn.
Scale scaleOf(const Picture& picture)
{
    double least = 1e9;
    double most = -1e9;
    for (const Picture::Curve& curve : picture.curves) {
        for (const Picture::Point& point : curve.points) {
            least = qMin(least, point.degC);
            most = qMax(most, point.degC);
        }
    }
    if (least > most) {
        return {};
    }
    constexpr double lines = 5.0;
    const double rough = qMax(1.0, (most - least) / lines);
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    Scale scale;
    scale.step = 10.0 * power;
    for (const double factor : {5.0, 2.0, 1.0}) {
        scale.step = factor * power >= rough ? factor * power : scale.step;
    }
    scale.least = std::floor(least / scale.step) * scale.step;
    scale.most = std::ceil(most / scale.step) * scale.step;
    if (scale.least == scale.most) {
        scale.most += scale.step;
    }
    return scale;
}

// Each set point holds until the next one; between the minutes of what was measured a straight line is
// drawn.
QByteArray curvePath(const Picture::Curve& curve, const Scale& scale, qint64 endMs)
{
    QByteArray path;
    const bool isMeasured = curve.kind == Picture::Curve::Kind::Measured;
    for (const Picture::Point& point : curve.points) {
        const QByteArray y = number(scale.depth(point.degC));
        if (path.isEmpty()) {
            path = 'M' + sec(point.ms) + ' ' + y;
        } else if (isMeasured) {
            path += 'L' + sec(point.ms) + ' ' + y;
        } else {
            path += 'H' + sec(point.ms) + 'V' + y;
        }
    }
    return isMeasured || path.isEmpty() ? path : path + 'H' + sec(endMs);
}

QByteArray curves(const Picture& picture, const Scale& scale)
{
    static const char* const kinds[] = {"planned", "sent", "measured"};
    QByteArray content;
    for (const double degC : scale.lines()) {
        const QByteArray y = number(scale.depth(degC));
        content += element("path", {}, "class=\"grid\" d=\"M0 " + y + 'H' + sec(picture.endMs) + '"');
    }
    for (const Picture::Curve& curve : picture.curves) {
        content += element("path", {},
            "class=\"c" + QByteArray::number(curve.channel) + " curve " + kinds[static_cast<int>(curve.kind)]
                + "\" d=\"" + curvePath(curve, scale, picture.endMs) + '"');
    }
    return content;
}

QByteArray marks(const Picture& picture, double height)
{
    QByteArray path;
    for (const Picture::Mark& step : picture.steps) {
        if (step.isHold) {
            path += 'M' + sec(step.ms) + " 0V" + number(height);
        }
    }
    return path.isEmpty() ? path : element("path", {}, "class=\"hold\" d=\"" + path + '"');
}

QByteArray drawing(const char* name, qint64 endMs, double height, const QByteArray& content)
{
    return element("svg", content,
        QByteArray("class=\"") + name + "\" preserveAspectRatio=\"none\" viewBox=\"0 0 " + sec(endMs) + ' '
            + number(height) + '"');
}

QByteArray label(const char* side, double percent, const QString& text)
{
    return element("span", escaped(text), QByteArray("style=\"") + side + ':' + number(percent) + "%\"");
}

QByteArray laneNames()
{
    QByteArray names;
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        names += label("top", (shutter + 0.5) * 100.0 / Channels::shutterCount, channelName(shutter));
    }
    return element("div", names, "class=\"names\"");
}

QByteArray degreeNames(const Scale& scale)
{
    QByteArray names;
    for (const double degC : scale.lines()) {
        names += label("top", 100.0 * scale.depth(degC) / scale.height(), QString::number(degC));
    }
    return element("div", names, "class=\"names\"");
}

QByteArray timeNames(qint64 endMs)
{
    constexpr int parts = 4;
    QByteArray names;
    for (int part = 0; part <= parts; ++part) {
        names += label("left", 100.0 * part / parts, elapsedText(endMs * part / parts));
    }
    return element("div", names, "class=\"times\" id=\"times\"");
}

QByteArray legend(const Picture& picture)
{
    QByteArray keys;
    for (const Picture::Curve& curve : picture.curves) {
        if (curve.kind != Picture::Curve::Kind::Planned) {
            continue;
        }
        keys += element("span", escaped(channelName(curve.channel)),
            "class=\"key c" + QByteArray::number(curve.channel) + '"');
    }
    const QByteArray what = escaped(picture.isCompared
            ? Words::tr("Set points in deg C: thin as planned, thick as sent; dotted: measured")
            : Words::tr("Set points in deg C"));
    return element("p", what + ' ' + keys, "class=\"legend\"");
}

} // namespace

QByteArray pictureMarkup(const Picture& picture)
{
    const qint64 endMs = qMax<qint64>(picture.endMs, 1);
    const Scale scale = scaleOf(picture);
    const double height = scale.height();
    QByteArray content = element("p",
        escaped(picture.isCompared ? Words::tr("Open shutters: above as planned, below as sent")
                                   : Words::tr("Open shutters")),
        "class=\"legend\"");
    content += laneNames()
        + drawing(
            "lanes", endMs, Channels::shutterCount, lanes(picture) + marks(picture, Channels::shutterCount));
    if (!picture.curves.isEmpty()) {
        content += legend(picture) + degreeNames(scale)
            + drawing("curves", endMs, height, curves(picture, scale) + marks(picture, height));
    }
    return content + timeNames(endMs) + element("div", {}, "class=\"cursor\" id=\"cursor\" hidden");
}

} // namespace GrowthCheck
