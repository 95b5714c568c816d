#include "messaging/queue_row.h"

#include <utility>

namespace messaging {

namespace wire = network::wire;

QueueRow read_row(std::string_view row, text::CharacterSet const& letters)
{
    if (wire::is_presence(row)) {
        auto presence = wire::parse_presence(row, letters);
        return presence ? QueueRow(std::move(*presence)) : Blocking{};
    }
    auto const message = wire::parse_message(row);
    return message ? QueueRow(*message) : Nonsense{};
}

} // namespace messaging
