#pragma once

#include "growthcheck/comparison/comparison.h"

namespace GrowthCheck {

/// What the journal of a run tells of the link, of readings and of time.
class FollowedLink
{
public:
    explicit FollowedLink(Comparison& target)
        : comparison(target)
    {
    }

    void take(const RecordedEvent& event);
    void takeMinute(const RecordedEvent& event);

private:
    void takeReceived(const QString& bytes);
    void tell(const Kind& kind, const QString& text, int channel = -1);

    Comparison& comparison;
    QString piece; ///< of a line that has come in part
};

} // namespace GrowthCheck
