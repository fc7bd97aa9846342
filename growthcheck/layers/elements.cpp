#include "growthcheck/layers/elements.h"

#include "base/channels.h"

#include <QStringList>

namespace GrowthCheck {

QString elementOf(int channel)
{
    if (channel < 0 || channel >= Channels::shutterCount) {
        return {};
    }
    QString name = QLatin1String(Channels::list[channel].name);
    while (!name.isEmpty() && name.back().isDigit()) {
        name.chop(1);
    }
    return name;
}

Role roleOf(int channel)
{
    static const QStringList groupThree{QStringLiteral("Al"), QStringLiteral("Ga"), QStringLiteral("In")};
    static const QStringList groupFive{QStringLiteral("As"), QStringLiteral("P"), QStringLiteral("Sb")};
    const QString element = elementOf(channel);
    if (groupThree.contains(element)) {
        return Role::GroupThree;
    }
    return groupFive.contains(element) ? Role::GroupFive : Role::Other;
}

} // namespace GrowthCheck
