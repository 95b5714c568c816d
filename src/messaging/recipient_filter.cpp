#include "messaging/recipient_filter.h"

namespace messaging {

Fate fate_of(network::wire::Message const& message, Reader const& reader)
{
    bool const is_own = message.sender == reader.user;
    if (message.recipient == network::wire::to_all) {
        return is_own && !reader.myown ? Fate::own_to_all : Fate::for_us;
    }
    // The sender comes first: a message from oneself to oneself is dropped too.
    if (is_own) {
        return Fate::own;
    }
    return message.recipient == reader.user ? Fate::for_us : Fate::for_others;
}

} // namespace messaging
