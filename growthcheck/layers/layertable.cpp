#include "growthcheck/layers/layertable.h"

#include "growthcheck/check/kinds.h"
#include "growthcheck/check/words.h"
#include "growthcheck/layers/elements.h"
#include "growthcheck/layers/material.h"
#include "shutter/shuttercommand.h"

#include <QStringList>

namespace GrowthCheck {

namespace {

Layer layerOf(const PlannedStep& step, const Rates& rates)
{
    Layer layer;
    layer.row = step.row;
    layer.shutters = shutterLetters(step.plan.shutters);
    layer.timeMs = step.endMs - step.startMs;
    layer.isHold = step.plan.kind == StepPlan::Kind::Hold;
    layer.material = materialOf(step.plan.shutters, rates);
    layer.nmByElement = growing(step.plan.shutters, rates);
    for (double& nm : layer.nmByElement) {
        nm *= static_cast<double>(layer.timeMs) / 1000.0;
        layer.nm += nm;
    }
    return layer;
}

// The groups of a program, each with the steps of one pass.
QVector<LayerBlock> blocksOf(const Timeline& timeline, const Rates& rates)
{
    QVector<LayerBlock> blocks;
    for (const PlannedStep& step : timeline.steps) {
        const bool isNext = step.pass == 1 && !blocks.isEmpty() && blocks.constLast().group != step.group;
        if (blocks.isEmpty() || isNext) {
            blocks.append(LayerBlock());
            blocks.last().group = step.group;
        }
        blocks.last().passes = step.pass; // at the end that of the last one
        if (step.pass == 1) {
            blocks.last().layers.append(layerOf(step, rates));
        }
    }
    return blocks;
}

} // namespace

double LayerBlock::nm() const
{
    double sum = 0.0;
    for (const Layer& layer : layers) {
        sum += layer.nm;
    }
    return sum * passes;
}

QString LayerBlock::text() const
{
    QStringList texts;
    for (int i = 0; i < layers.size();) {
        const QString material = layers[i].material;
        double thickness = 0.0;
        // Steps of one material are one layer, whatever pauses lie between them.
        for (; i < layers.size() && (layers[i].material == material || layers[i].nm == 0.0); ++i) {
            thickness += layers[i].nm;
        }
        if (thickness > 0.0) {
            texts.append(QStringLiteral("%1 %2").arg(material, nmText(thickness)));
        }
    }
    QString stack = texts.join(QLatin1String(" / "));
    if (passes == 1 || texts.isEmpty()) {
        return stack;
    }
    return QStringLiteral("%1 x [%2]").arg(QString::number(passes), stack);
}

LayerTable layersOf(const Timeline& timeline, const Rates& rates)
{
    LayerTable table;
    table.blocks = blocksOf(timeline, rates);
    ElementRates whole;
    for (const LayerBlock& block : qAsConst(table.blocks)) {
        for (const Layer& layer : block.layers) {
            if (layer.nm == 0.0) {
                continue;
            }
            table.nmByMaterial[layer.material] += layer.nm * block.passes;
            for (auto element = layer.nmByElement.begin(); element != layer.nmByElement.end(); ++element) {
                whole[element.key()] += element.value() * block.passes;
            }
        }
        table.totalNm += block.nm();
    }
    table.composition = sharesText(whole);
    return table;
}

Findings checkRates(const Timeline& timeline, const Rates& rates)
{
    Findings findings;
    for (const PlannedStep& step : timeline.steps) {
        for (int shutter = 0; shutter < step.plan.shutters.size(); ++shutter) {
            const bool isMissing = step.plan.shutters[shutter] && roleOf(shutter) == Role::GroupThree
                && rates.nmPerSec.at(static_cast<size_t>(shutter)) == 0.0;
            if (isMissing) {
                Finding finding;
                finding.kind = Kinds::rateMissing;
                finding.channel = shutter;
                finding.text
                    = Words::tr("The shutter opens, and its cell has no rate: what it grows is missing "
                                "from the layers.");
                addOnce(findings, finding);
            }
        }
    }
    return findings;
}

QString nmText(double nm)
{
    constexpr double leastRounded = 1e9;
    const QString number
        = nm < leastRounded ? QString::number(nm, 'f', nm < 100.0 ? 2 : 1) : QString::number(nm, 'g', 6);
    return number + QLatin1String(" nm");
}

} // namespace GrowthCheck
