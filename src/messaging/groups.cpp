#include "messaging/groups.h"

#include "text/failure.h"
#include "text/numbers.h"

namespace messaging {

ChosenGroup chosen_group(std::string_view row, forms::Groups const& groups)
{
    if (row.size() < forms::group_tail) {
        throw text::Failure("Invalid procedure call or argument", 5, "group");
    }
    auto const slot =
        static_cast<std::size_t>(text::leading_whole_number(row.substr(row.size() - 1)));
    return {.name = std::string(forms::group_name(row)), .members = groups.group.at(slot).rows()};
}

} // namespace messaging
