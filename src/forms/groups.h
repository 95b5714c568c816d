#pragma once

#include "controls/basic.h"
#include "controls/list_box.h"
#include "controls/window.h"
#include "text/character_set.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace forms {

/// What stands behind the name in a group's row: thirty blanks, which push it out of sight, and the
/// slot's digit.
inline constexpr std::size_t group_tail = 31;

[[nodiscard]] inline std::string group_row(std::string_view name, std::string_view slot)
{
    return std::string(name).append(group_tail - 1, ' ').append(slot);
}

/// The name in a group's row.
[[nodiscard]] inline std::string_view group_name(std::string_view row)
{
    return row.substr(0, row.size() - group_tail);
}

/// The groups and their window. Sending reads these lists, so the window exists for the whole run.
struct Groups {
    explicit Groups(text::CharacterSet const& letters) : List1(letters), users(letters)
    {
        group.fill(controls::ListBox(letters));
    }

    static constexpr std::size_t slots = 10;

    controls::Window window{8205, 5370};

    controls::ListBox List1;                    ///< name, 30 blanks, slot digit
    controls::ListBox usedgroups;               ///< row k: "1" while slot k is in use, else "0"
    std::array<controls::ListBox, slots> group; ///< the members of slot k, display names
    std::string curgroup = "0";                 ///< the current slot's digit
    controls::ListBox users;                    ///< who can still be added
    controls::Button Command1{">"};
    controls::Button Command2{"New Group"};
    controls::Button Command3{"Delete Group"};
    controls::Button Command4{"<"};
    controls::Button Command5{"Change Name"};
    controls::Button Command6{"Cancel"};
    controls::Button closebtn{"Save"};

    controls::Command loadgroups;
};

} // namespace forms
