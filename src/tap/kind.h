#pragma once

#include "messaging/queue_row.h"

#include <string_view>

namespace tap {

/// What a datagram is.
enum class Kind {
    announce,
    answer,
    sign_off,
    message,
    block, ///< a presence marker without "="
    // What a program drops unread:
    empty,
    probe,
    dash,
    nonsense,
};

/// `row` is how a program reads `datagram`.
[[nodiscard]] Kind kind_of(messaging::QueueRow const& row, std::string_view datagram);

/// In one word: "announce", "sign-off".
[[nodiscard]] std::string_view name_of(Kind kind);

} // namespace tap
