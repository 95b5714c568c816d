#include "tap/kind.h"

#include <variant>

namespace tap {

namespace wire = network::wire;

namespace {

std::string_view kind_of(wire::Presence const& presence)
{
    if (presence.marker == wire::sign_off) {
        return "sign-off";
    }
    return presence.marker == wire::announce ? "announce" : "answer";
}

std::string_view kind_of_nonsense(std::string_view datagram)
{
    if (datagram.empty()) {
        return "empty";
    }
    if (datagram == wire::probe) {
        return "probe";
    }
    return datagram.starts_with(wire::dash) ? "dash" : "nonsense";
}

} // namespace

std::string_view kind_of(messaging::QueueRow const& row, std::string_view datagram)
{
    if (auto const* presence = std::get_if<wire::Presence>(&row)) {
        return kind_of(*presence);
    }
    if (std::holds_alternative<wire::Message>(row)) {
        return "message";
    }
    return std::holds_alternative<messaging::Blocking>(row) ? "block" : kind_of_nonsense(datagram);
}

} // namespace tap
