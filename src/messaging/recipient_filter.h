#pragma once

#include "network/wire.h"

#include <string_view>

namespace messaging {

/// Why a message reaches a user, or does not.
enum class Fate {
    for_us,
    own_to_all, ///< dropped: the own message to everybody, which the user does not want to see
    own,        ///< dropped: the own message to somebody, even to oneself
    for_others, ///< dropped
};

/// Whose program reads the message.
struct Reader {
    std::string_view user; ///< the own identity, brackets included
    bool myown = false;    ///< own messages to everybody are wanted
};

/// Every program on the segment gets every message: this tells whom it is for. All comparisons are
/// exact, byte for byte.
[[nodiscard]] Fate fate_of(network::wire::Message const& message, Reader const& reader);

} // namespace messaging
