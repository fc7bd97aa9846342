#pragma once

#include "growthcheck/check/finding.h"
#include "growthcheck/layers/material.h"
#include "growthcheck/layers/rates.h"
#include "growthcheck/rehearsal/timeline.h"

#include <QMap>

namespace GrowthCheck {

/// What a step grows.
struct Layer
{
    int row = 0;
    QString shutters; ///< letters
    qint64 timeMs = 0; ///< as it is played: to the next step's start
    bool isHold = false; ///< grows on while the operator is waited for
    QString material; ///< "Al0.30Ga0.70As:Si"; empty when nothing grows
    ElementRates nmByElement; ///< in one pass
    double nm = 0.0; ///< all of them
};

/// The layers of a group, bottom first, and how often they are grown.
struct LayerBlock
{
    QString group;
    int passes = 1;
    QVector<Layer> layers;

    /// Of all passes.
    double nm() const;
    /// "20 x [GaAs 2.0 nm / AlAs 2.0 nm]"; empty when nothing grows.
    QString text() const;
};

/// What a program grows, from the substrate up.
struct LayerTable
{
    QVector<LayerBlock> blocks;
    double totalNm = 0.0;
    QMap<QString, double> nmByMaterial;
    QString composition; ///< of the whole: "Al0.05Ga0.95As"
};

LayerTable layersOf(const Timeline& timeline, const Rates& rates);

/// What the rates leave open: group III cells that open without one.
Findings checkRates(const Timeline& timeline, const Rates& rates);

/// A thickness for a reader: "2.00 nm"; in six digits from a metre on.
QString nmText(double nm);

} // namespace GrowthCheck
