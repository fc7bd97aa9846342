#pragma once

#include "growthcheck/layers/rates.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace GrowthCheck {

/// How fast each element is built in, nm/s.
using ElementRates = QMap<QString, double>;

/// The elements with a rate among the cells whose shutters are open.
ElementRates growing(const QVector<bool>& shutters, const Rates& rates);

/// The elements by their shares, with two decimals: "Al0.30Ga0.70". Empty when there are none.
QString sharesText(const ElementRates& elements);

/// What grows with these shutters: the elements by their shares, the group V element, dopants behind a colon.
/// Empty when nothing has a rate.
QString materialOf(const QVector<bool>& shutters, const Rates& rates);

} // namespace GrowthCheck
