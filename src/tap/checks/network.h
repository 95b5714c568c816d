#pragma once

#include "tap/finding.h"

#include <string>
#include <vector>

namespace tap {

/// One network interface.
struct Interface {
    std::string name = {};
    std::string address = {}; ///< dotted; empty when it has none
    bool up = false;
    bool carrier = false; ///< a cable or a cell is there
    bool broadcasts = false;
    bool loopback = false;
    bool is_virtual = false; ///< a bridge, a tunnel, a container's
};

/// The interface that a broadcast to everybody leaves by.
struct WayOut {
    std::string interface = {}; ///< empty: there is none
    bool by_route = false;      ///< the kernel's choice; else the messenger's own
};

/// Whether there is an interface that can carry a broadcast.
[[nodiscard]] Finding check_interfaces(std::vector<Interface> const& interfaces);

/// Whether broadcasts take the way that one would expect.
[[nodiscard]] Finding check_route(std::vector<Interface> const& interfaces, WayOut const& way_out);

/// What became of one datagram to everybody, which every messenger drops.
struct Echo {
    enum class State { heard, not_heard, refused, not_tried };

    State state = State::not_tried;
    std::string reason = {}; ///< why it was refused, or not tried
};

/// What mends it is what mends the interface or the firewall.
[[nodiscard]] Finding check_echo(Echo const& echo, Finding const& interface,
                                 Finding const& firewall);

} // namespace tap
