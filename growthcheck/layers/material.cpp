#include "growthcheck/layers/material.h"

#include "growthcheck/layers/elements.h"

#include <QStringList>

#include <numeric>

namespace GrowthCheck {

namespace {

double rateOf(int shutter, const Rates& rates)
{
    return rates.nmPerSec.at(static_cast<size_t>(shutter));
}

// As crystals are named: In0.20Ga0.80As, Al0.30Ga0.70As.
QStringList inTheirOrder(const QStringList& elements)
{
    QStringList ordered;
    for (const char* first : {"In", "Al", "Ga"}) {
        if (elements.contains(QLatin1String(first))) {
            ordered.append(QLatin1String(first));
        }
    }
    for (const QString& element : elements) {
        if (!ordered.contains(element)) {
            ordered.append(element);
        }
    }
    return ordered;
}

// The elements of a role whose shutters are open and that have no rate, each once.
QStringList others(const QVector<bool>& shutters, const Rates& rates, Role role)
{
    QStringList elements;
    for (int shutter = 0; shutter < shutters.size(); ++shutter) {
        const bool counts = shutters[shutter] && rateOf(shutter, rates) == 0.0 && roleOf(shutter) == role;
        if (counts && !elements.contains(elementOf(shutter))) {
            elements.append(elementOf(shutter));
        }
    }
    return elements;
}

} // namespace

ElementRates growing(const QVector<bool>& shutters, const Rates& rates)
{
    ElementRates elements;
    for (int shutter = 0; shutter < shutters.size(); ++shutter) {
        if (shutters[shutter] && rateOf(shutter, rates) > 0.0) {
            elements[elementOf(shutter)] += rateOf(shutter, rates);
        }
    }
    return elements;
}

QString sharesText(const ElementRates& elements)
{
    if (elements.size() == 1) {
        return elements.firstKey();
    }
    const QList<double> rates = elements.values();
    const double all = std::accumulate(rates.begin(), rates.end(), 0.0);
    QString text;
    for (const QString& element : inTheirOrder(elements.keys())) {
        text += element + QString::number(elements[element] / all, 'f', 2);
    }
    return text;
}

QString materialOf(const QVector<bool>& shutters, const Rates& rates)
{
    const ElementRates elements = growing(shutters, rates);
    if (elements.isEmpty()) {
        return {};
    }
    const QStringList dopants = others(shutters, rates, Role::Other);
    const QString crystal = sharesText(elements) + others(shutters, rates, Role::GroupFive).join(QString());
    return dopants.isEmpty() ? crystal : crystal + QLatin1Char(':') + dopants.join(QLatin1Char(','));
}

} // namespace GrowthCheck
