#include "text/quote.h"

#include <algorithm>
#include <cstdlib>

namespace text {

std::string shortened(std::string_view conversation, int room, std::string_view own,
                      std::string_view sender)
{
    if (static_cast<long long>(conversation.size()) <= room) {
        return std::string(conversation);
    }
    // A negative room still takes a tail, by that count; the head of a long thread is lost.
    auto const tail = std::min(conversation.size(), static_cast<std::size_t>(std::abs(room)));
    return std::string(own).append("/").append(sender).append("> ... ").append(
        conversation.substr(conversation.size() - tail));
}

int quote_room(int limit, std::string_view sender, std::string_view own, std::string_view reply)
{
    constexpr std::size_t punctuation = 9;
    return limit - static_cast<int>(sender.size() + own.size() + reply.size() + punctuation);
}

} // namespace text
