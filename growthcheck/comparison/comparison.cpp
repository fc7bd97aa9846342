#include "growthcheck/comparison/comparison.h"

#include <cmath>

namespace GrowthCheck {

void Difference::add(double degC)
{
    ++minutes;
    sumDegC += std::abs(degC);
    largestDegC = qMax(largestDegC, std::abs(degC));
}

int ComparedStep::worstChannel() const
{
    int worst = 0;
    for (int channel = 1; channel < Channels::count; ++channel) {
        const auto at = static_cast<size_t>(channel);
        if (differences.at(at).largestDegC > differences.at(static_cast<size_t>(worst)).largestDegC) {
            worst = channel;
        }
    }
    return worst;
}

} // namespace GrowthCheck
