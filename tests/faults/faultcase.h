#pragma once

#include "simulator/options.h"

#include <QString>
#include <QVector>

/// One way in which the link goes wrong.
struct FaultCase
{
    QString name; ///< "lost 10 %"
    Chamber::FaultRates rates = {};
    int latencyMs = 0; ///< of every reply
    int leastTold = 0; ///< of the spells of wrong readings, in percent

    bool has(Chamber::FaultKind kind) const { return rates.at(static_cast<size_t>(kind)) > 0.0; }
    /// The chamber of this case. Its cells are 111 deg C apart, so that a reading tells whose it is, even
    /// with one digit wrong.
    Chamber::Options options(quint64 seed) const;
};

/// Every kind of fault by itself at 1, 10 and 50 %, all of them together at 10 %, and those that leave the
/// link as it is together at 10 %; each with replies that take 0, 5 and 150 ms.
QVector<FaultCase> faultCases();
