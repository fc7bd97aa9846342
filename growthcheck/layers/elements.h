#pragma once

#include <QString>

namespace GrowthCheck {

/// What a cell's element is to a III-V crystal.
enum class Role {
    GroupThree, ///< its rate is the growth rate
    GroupFive, ///< there in excess; its shutter may stand open without a layer growing
    Other, ///< a dopant, or no source cell
};

/// The element of a channel, its name without the number of a molecule's atoms: "As" of the cell "As4".
/// Empty for a substrate's heater.
QString elementOf(int channel);

Role roleOf(int channel);

} // namespace GrowthCheck
