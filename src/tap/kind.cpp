#include "tap/kind.h"

#include <array>
#include <variant>

namespace tap {

namespace wire = network::wire;

namespace {

Kind kind_of(wire::Presence const& presence)
{
    if (presence.marker == wire::sign_off) {
        return Kind::sign_off;
    }
    return presence.marker == wire::announce ? Kind::announce : Kind::answer;
}

Kind kind_of_nonsense(std::string_view datagram)
{
    if (datagram.empty()) {
        return Kind::empty;
    }
    if (datagram == wire::probe) {
        return Kind::probe;
    }
    return datagram.starts_with(wire::dash) ? Kind::dash : Kind::nonsense;
}

} // namespace

Kind kind_of(messaging::QueueRow const& row, std::string_view datagram)
{
    if (auto const* presence = std::get_if<wire::Presence>(&row)) {
        return kind_of(*presence);
    }
    if (std::holds_alternative<wire::Message>(row)) {
        return Kind::message;
    }
    return std::holds_alternative<messaging::Blocking>(row) ? Kind::block
                                                            : kind_of_nonsense(datagram);
}

std::string_view name_of(Kind kind)
{
    static constexpr std::array<std::string_view, 9> names{
        "announce", "answer", "sign-off", "message", "block", "empty", "probe", "dash", "nonsense",
    };
    return names.at(static_cast<std::size_t>(kind));
}

} // namespace tap
