#pragma once

#include "network/wire.h"
#include "text/character_set.h"

#include <string_view>
#include <variant>

namespace messaging {

/// A presence marker without "=" behind it. Such a row is never removed from the queue.
struct Blocking {};

/// Neither a presence row nor a message: dropped without a trace.
struct Nonsense {};

/// What one datagram is to a program that takes it off its queue.
using QueueRow = std::variant<network::wire::Presence, network::wire::Message, Blocking, Nonsense>;

/// Presence and message are views into `row`.
[[nodiscard]] QueueRow read_row(std::string_view row, text::CharacterSet const& letters);

} // namespace messaging
