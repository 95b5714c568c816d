#pragma once

#include <netinet/in.h>
#include <string>

namespace qt {

/// The interface that a broadcast leaves by when the kernel has no route for it: running, not the
/// loopback, able to broadcast, with an IPv4 address.
struct BroadcastInterface {
    int index = 0; ///< 0: there is none
    in_addr address{};
};

[[nodiscard]] BroadcastInterface broadcast_interface();

/// Dotted, or "0.0.0.0".
[[nodiscard]] std::string dotted(in_addr address);

} // namespace qt
