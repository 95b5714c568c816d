#pragma once

#include <string>
#include <vector>

namespace tap {

/// What a look at one thing of a desk brought to light.
struct Finding {
    enum class Health { well, warning, wrong, unknown };

    std::string check; ///< what was looked at, in one or two words
    Health health = Health::well;
    std::string text;
    /// The command that mends it, to be pasted into a shell as it stands: what only a person can do
    /// stands behind a "#". Empty when there is nothing to do.
    std::string remedy = {};
};

using Findings = std::vector<Finding>;

/// Whether any of them is wrong. A warning is not.
[[nodiscard]] bool anything_wrong(Findings const& findings);

} // namespace tap
