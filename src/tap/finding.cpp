#include "tap/finding.h"

#include <algorithm>

namespace tap {

bool anything_wrong(Findings const& findings)
{
    return std::ranges::any_of(
        findings, [](Finding const& finding) { return finding.health == Finding::Health::wrong; });
}

} // namespace tap
