#include "messaging/groups.h"

#include "text/failure.h"
#include "text/numbers.h"

namespace messaging {

ChosenGroup chosen_group(std::string_view row, forms::Groups const& groups)
{
    /// Thirty blanks and the slot's digit, out of sight behind the name.
    constexpr std::size_t tail = 31;
    if (row.size() < tail) {
        throw text::Failure("Invalid procedure call or argument", 5, "group");
    }
    auto const slot =
        static_cast<std::size_t>(text::leading_whole_number(row.substr(row.size() - 1)));
    return {.name = std::string(row.substr(0, row.size() - tail)),
            .members = groups.group.at(slot).rows()};
}

} // namespace messaging
