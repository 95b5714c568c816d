#pragma once

#include "controls/list_box.h"
#include "text/character_set.h"

#include <string>
#include <string_view>

/// Look-ups in the directory: rows of identity, "=", display name.
namespace network {

/// What stands behind the row's first "="; the whole row when it has none.
[[nodiscard]] std::string_view row_name(std::string_view row);

/// From a display name to a recipient field. The first row whose end is the name, case-blind, gives
/// its identity in upper case: `MEYER` finds `ALICE MEYER`, and an empty name finds the first row.
/// Nobody: "[ALL]" for the name ALL, else
/// "[---]".
[[nodiscard]] std::string lookupuser(std::string_view name, controls::ListBox const& userlist,
                                     text::CharacterSet const& letters);

/// The name of the first row that contains the sender field anywhere, else the sender field itself.
[[nodiscard]] std::string sender_name(std::string_view sender, controls::ListBox const& userlist);

} // namespace network
