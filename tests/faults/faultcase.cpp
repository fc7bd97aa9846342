#include "faults/faultcase.h"

#include <algorithm>

using Chamber::FaultKind;

namespace {

FaultCase caseOf(const QString& name, int percent, const QVector<FaultKind>& kinds, int latencyMs)
{
    FaultCase one;
    one.name = QStringLiteral("%1 %2 %").arg(name).arg(percent);
    one.latencyMs = latencyMs;
    for (const FaultKind kind : kinds) {
        one.rates.at(static_cast<size_t>(kind)) = percent / 100.0;
    }
    return one;
}

QVector<FaultKind> allKinds()
{
    QVector<FaultKind> kinds;
    for (int number = 0; number < Chamber::faultKindCount; ++number) {
        kinds.append(static_cast<FaultKind>(number));
    }
    return kinds;
}

// How many spells of wrong readings the journal has to tell: nearly all that duplicates make; the others are
// cut short by faults that hide whose a line is.
constexpr int leastToldOfDuplicates = 90;
constexpr int leastToldOfMixes = 60;

// All that leave a reply to every request, sooner or later.
QVector<FaultKind> harmlessKinds()
{
    return {FaultKind::Late, FaultKind::Duplicate, FaultKind::Garbled, FaultKind::Split, FaultKind::Merged,
        FaultKind::Er, FaultKind::WrongLength};
}

QVector<QPair<QString, QVector<FaultKind>>> mixes()
{
    return {{QStringLiteral("all"), allKinds()}, {QStringLiteral("all that answer"), harmlessKinds()}};
}

} // namespace

Chamber::Options FaultCase::options(quint64 seed) const
{
    Chamber::Options options;
    options.seed = seed;
    options.latencyMs = latencyMs;
    options.jitterMs = std::min(latencyMs, options.jitterMs);
    options.spreadDegC = 111.0;
    options.faultRates = rates;
    return options;
}

QVector<FaultCase> faultCases()
{
    QVector<FaultCase> cases;
    for (const int latencyMs : {0, 5, 150}) {
        for (const FaultKind kind : allKinds()) {
            for (const int percent : {1, 10, 50}) {
                cases.append(
                    caseOf(QString::fromLatin1(Chamber::faultName(kind)), percent, {kind}, latencyMs));
                cases.last().leastTold = kind == FaultKind::Duplicate ? leastToldOfDuplicates : 0;
            }
        }
        for (const auto& [name, kinds] : mixes()) {
            cases.append(caseOf(name, 10, kinds, latencyMs));
            cases.last().leastTold = leastToldOfMixes;
        }
    }
    return cases;
}
