#pragma once

#include "platform/environment.h"
#include "text/character_set.h"

#include <string>
#include <string_view>

namespace network {

/// Computer name, "\", user name, as the surroundings give them at this moment.
[[nodiscard]] std::string own_account(platform::Environment const& environment);

/// "[", the account, "]", in upper case.
[[nodiscard]] std::string identity_of(std::string_view account, text::CharacterSet const& letters);

/// The own identity, read afresh: a computer that is renamed is a new user to its peers.
[[nodiscard]] std::string own_identity(platform::Environment const& environment,
                                       text::CharacterSet const& letters);

} // namespace network
