#include "growthcheck/page/picturedata.h"

#include "growthcheck/check/words.h"
#include "growthcheck/output/jsonparts.h"

namespace GrowthCheck {

namespace {

QJsonArray spansArray(const QVector<QVector<Picture::Span>>& shutters)
{
    QJsonArray all;
    for (const QVector<Picture::Span>& spans : shutters) {
        QJsonArray own;
        for (const Picture::Span& span : spans) {
            own.append(inSeconds(span.first));
            own.append(inSeconds(span.second));
        }
        all.append(own);
    }
    return all;
}

QJsonArray curveArray(const QVector<Picture::Curve>& curves)
{
    QJsonArray all;
    for (const Picture::Curve& curve : curves) {
        QJsonArray times;
        QJsonArray values;
        for (const Picture::Point& point : curve.points) {
            times.append(inSeconds(point.ms));
            values.append(point.degC);
        }
        all.append(jsonObject({{"name", channelName(curve.channel)}, {"kind", static_cast<int>(curve.kind)},
            {"sec", times}, {"degC", values}}));
    }
    return all;
}

QJsonArray stepArray(const QVector<Picture::Mark>& steps)
{
    QJsonArray all;
    for (const Picture::Mark& step : steps) {
        all.append(QJsonArray{
            inSeconds(step.ms), step.row + 1, step.pass, step.times, shortened(step.group), step.isHold});
    }
    return all;
}

QJsonObject texts()
{
    return jsonObject({{"step", Words::tr("step %1")}, {"pass", Words::tr("pass %1 of %2")},
        {"hold", Words::tr("+ operator")}, {"open", Words::tr("open: %1")}, {"none", Words::tr("none open")},
        {"folded", Words::tr("passes alike, not drawn one by one")}, {"measured", Words::tr("%1 measured")},
        {"sent", Words::tr("%1 sent")}, {"days", Words::tr("%1 d %2")}});
}

} // namespace

QByteArray pictureData(const Picture& picture, const QDateTime& runAt)
{
    QJsonArray names;
    for (int shutter = 0; shutter < Channels::shutterCount; ++shutter) {
        names.append(channelName(shutter));
    }
    QJsonArray folded;
    for (const Picture::Span& span : picture.folded) {
        folded.append(QJsonArray{inSeconds(span.first), inSeconds(span.second)});
    }
    QJsonObject object = jsonObject(
        {{"endSec", inSeconds(picture.endMs)}, {"shutters", names}, {"planned", spansArray(picture.planned)},
            {"sent", spansArray(picture.sent)}, {"curves", curveArray(picture.curves)},
            {"steps", stepArray(picture.steps)}, {"folded", folded}, {"texts", texts()}});
    if (runAt.isValid()) {
        // The clock of the place, which the reader's need not be.
        const QDateTime local(runAt.date(), runAt.time(), Qt::UTC);
        object.insert(QStringLiteral("runAtMs"), static_cast<double>(local.toMSecsSinceEpoch()));
    }
    // A text may say "</script>".
    return bytesOf(object).replace("<", "\\u003c");
}

} // namespace GrowthCheck
