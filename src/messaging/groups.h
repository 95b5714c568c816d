#pragma once

#include "forms/groups.h"

#include <string>
#include <string_view>
#include <vector>

namespace messaging {

/// A group as its row names it: the name, thirty blanks, the slot's digit.
struct ChosenGroup {
    std::string name;
    std::vector<std::string> members; ///< display names, as they stand in the list
};

/// Raises a Failure ("Invalid procedure call or argument", 5) for a row that is too short, as when
/// none is chosen.
[[nodiscard]] ChosenGroup chosen_group(std::string_view row, forms::Groups const& groups);

} // namespace messaging
