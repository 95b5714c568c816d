#pragma once

#include <string>
#include <string_view>

namespace text {

/// What a reply quotes of a conversation that is longer than `room`: own name, "/", sender, "> ...
/// ", and as many of its last characters as the absolute value of the room.
[[nodiscard]] std::string shortened(std::string_view conversation, int room, std::string_view own,
                                    std::string_view sender);

/// The room that a quote has beside the reply and both names.
[[nodiscard]] int quote_room(int limit, std::string_view sender, std::string_view own,
                             std::string_view reply);

} // namespace text
