#pragma once

#include <string_view>
#include <vector>

namespace tap {

/// One row of the kernel's table of UDP sockets.
struct BoundPort {
    int port = 0;
    unsigned long inode = 0; ///< by which the process is found that holds the socket
    unsigned long drops = 0; ///< datagrams lost because its buffer was full

    bool operator==(BoundPort const&) const = default;
};

/// Reads "/proc/net/udp" or "/proc/net/udp6". A row that cannot be read is left out.
[[nodiscard]] std::vector<BoundPort> bound_ports(std::string_view table);

} // namespace tap
