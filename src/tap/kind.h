#pragma once

#include "messaging/queue_row.h"

#include <string_view>

namespace tap {

/// What a datagram is, in one word: "announce", "answer", "sign-off" or "message" where a program
/// handles it; "block" for a presence marker without "="; "empty", "probe", "dash" or "nonsense"
/// where it drops it unread. `row` is how a program reads `datagram`.
[[nodiscard]] std::string_view kind_of(messaging::QueueRow const& row, std::string_view datagram);

} // namespace tap
