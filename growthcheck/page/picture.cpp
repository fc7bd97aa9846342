#include "growthcheck/page/picture.h"

#include "growthcheck/rehearsal/playedsteps.h"

#include <QMap>
#include <QSet>

namespace GrowthCheck {

namespace {

constexpr int mostSteps = 4000; // that are drawn one by one
constexpr int mostPoints = 20000; // of all curves

using Spans = QVector<QVector<Picture::Span>>;

// Adds where shutters are open, joined with what ends there.
void addOpen(Spans& spans, const QVector<bool>& open, qint64 fromMs, qint64 toMs)
{
    spans.resize(Channels::shutterCount);
    for (int shutter = 0; shutter < open.size(); ++shutter) {
        if (!open[shutter] || fromMs >= toMs) {
            continue;
        }
        QVector<Picture::Span>& own = spans[shutter];
        if (!own.isEmpty() && own.constLast().second == fromMs) {
            own.last().second = toMs;
        } else {
            own.append({fromMs, toMs});
        }
    }
}

class Plan
{
public:
    explicit Plan(Picture& target)
        : picture(target)
    {
        picture.planned.resize(Channels::shutterCount);
    }

    void add(const PlannedStep& step, const PlayedStep& played)
    {
        addOpen(picture.planned, step.plan.shutters, played.startMs, played.endMs);
        picture.steps.append({played.startMs, step.row, played.pass, step.times, step.group,
            step.plan.kind == StepPlan::Kind::Hold});
        addSetPoints(played.setPoints);
    }

    void addSetPoints(const QVector<PlannedSetPoint>& setPoints)
    {
        for (const PlannedSetPoint& setPoint : setPoints) {
            if (points == mostPoints) {
                picture.isCut = true;
                return;
            }
            ++points;
            curves[setPoint.channel].append({setPoint.dueMs, setPoint.degC});
        }
    }

    void conclude()
    {
        for (auto curve = curves.begin(); curve != curves.end(); ++curve) {
            picture.curves.append({curve.key(), Picture::Curve::Kind::Planned, curve.value()});
        }
    }

private:
    Picture& picture;
    QMap<int, QVector<Picture::Point>> curves; // by channel
    int points = 0;
};

// The steps that are listed, and a block for the passes that are not.
void addListed(const Timeline& timeline, Picture& picture, Plan& plan)
{
    const int drawn = qMin(timeline.steps.size(), mostSteps);
    for (int index = 0; index < drawn; ++index) {
        const PlannedStep& step = timeline.steps[index];
        plan.add(step, {step, step.startMs, step.endMs, step.pass, step.holdsBefore, step.setPoints});
        if (const Fold* fold = timeline.foldAfter(index)) {
            picture.folded.append({fold->startMs, fold->startMs + fold->passes * fold->periodMs});
        }
    }
    picture.isCut = picture.isCut || drawn < timeline.steps.size();
}

void addRun(const Comparison& comparison, Picture& picture)
{
    QMap<int, QVector<Picture::Point>> sent;
    picture.sent.resize(Channels::shutterCount);
    const int drawn = qMin(comparison.shutters.size(), mostSteps);
    for (int index = 0; index < drawn; ++index) {
        const bool isLast = index + 1 == comparison.shutters.size();
        const qint64 untilMs = isLast ? comparison.endMs : comparison.shutters[index + 1].ms;
        addOpen(picture.sent, comparison.shutters[index].open, comparison.shutters[index].ms, untilMs);
    }
    picture.isCut = picture.isCut || drawn < comparison.shutters.size();
    for (const ComparedStep& step : comparison.steps) {
        for (const ComparedSetPoint& setPoint : step.setPoints) {
            if (setPoint.sentMs >= 0) {
                sent[setPoint.channel].append({setPoint.sentMs, setPoint.sentDegC});
            }
        }
    }
    for (auto curve = sent.begin(); curve != sent.end(); ++curve) {
        picture.curves.append({curve.key(), Picture::Curve::Kind::Sent, curve.value()});
    }
}

// Of the channels that the program or somebody gave a set point.
void addMeasured(const Comparison& comparison, Picture& picture)
{
    QSet<int> channels;
    for (const Picture::Curve& curve : qAsConst(picture.curves)) {
        channels.insert(curve.channel);
    }
    for (int channel = 0; channel < Channels::count; ++channel) {
        if (!channels.contains(channel)) {
            continue;
        }
        Picture::Curve curve{channel, Picture::Curve::Kind::Measured, {}};
        for (const MeasuredMinute& minute : comparison.minutes) {
            const std::optional<double>& degC = minute.degC.at(static_cast<size_t>(channel));
            if (degC) {
                curve.points.append({minute.ms, *degC});
            }
        }
        if (!curve.points.isEmpty()) {
            picture.curves.append(curve);
        }
    }
}

} // namespace

Picture pictureOf(const Timeline& timeline)
{
    Picture picture;
    picture.endMs = timeline.endMs;
    picture.isCut = timeline.stop != Timeline::Stop::AtEnd;
    Plan plan(picture);
    if (timeline.starts <= mostSteps) {
        playSteps(timeline, [&plan](const PlayedStep& played) {
            plan.add(played.planned, played);
            return true;
        });
    } else {
        addListed(timeline, picture, plan);
    }
    for (const PlannedSetPoint& setPoint : timeline.tail) {
        picture.endMs = qMax(picture.endMs, setPoint.dueMs);
    }
    plan.addSetPoints(timeline.tail);
    plan.conclude();
    return picture;
}

Picture pictureOf(const Comparison& comparison)
{
    Picture picture = pictureOf(comparison.plan);
    picture.isCompared = true;
    picture.endMs = qMax(picture.endMs, comparison.endMs);
    addRun(comparison, picture);
    addMeasured(comparison, picture);
    return picture;
}

} // namespace GrowthCheck
